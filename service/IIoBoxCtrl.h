#pragma once

#include <utils/RefBase.h>

namespace android {

// The tool obtains this control but calls none of its operations.
class IIoBoxCtrl : public RefBase {
protected:
    ~IIoBoxCtrl() override = default;
};

}  // namespace android
