#pragma once

#include <utils/RefBase.h>

namespace android {

class IRs232Ctrl : public RefBase {
public:

protected:
    ~IRs232Ctrl() override = default;
};

}  // namespace android
