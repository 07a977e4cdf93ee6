#pragma once
namespace android {
/* a comment the vendor
   never closed
class IOpen;
}
