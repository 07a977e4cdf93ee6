#pragma once

#include <utils/RefBase.h>
#include <utils/String16.h>

namespace android {

class IKeyboardCtrl : public RefBase {
public:
    virtual bool getKeyboardByName(const String16& name) = 0;
    virtual bool getKeyboardByID(int vid, int pid) = 0;

protected:
    ~IKeyboardCtrl() override = default;
};

}  // namespace android
