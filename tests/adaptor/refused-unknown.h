#pragma once
#include <utils/RefBase.h>

namespace android {

class IColours : public RefBase {
public:
    virtual Colour getColour() = 0;
};

}  // namespace android
