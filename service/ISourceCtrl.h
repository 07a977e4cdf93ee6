#pragma once

#include <utils/RefBase.h>

namespace android {

class ISourceCtrl : public RefBase {
public:

protected:
    ~ISourceCtrl() override = default;
};

}  // namespace android
