#pragma once

#include <utils/RefBase.h>

namespace android {

class ISerialCtrl : public RefBase {
public:

protected:
    ~ISerialCtrl() override = default;
};

}  // namespace android
