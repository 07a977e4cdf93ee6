#pragma once

#include <utils/RefBase.h>

namespace android {

// The tool obtains this control but calls none of its operations.
class ISensorBoxCtrl : public RefBase {
protected:
    ~ISensorBoxCtrl() override = default;
};

}  // namespace android
