#pragma once
#include <utils/RefBase.h>
#include <utils/String16.h>

namespace android {

// The memory keeps a setter's last in-argument for its getter when the types line up.
class IPaired : public RefBase {
public:
    virtual int getLevel() = 0;
    virtual int setLevel(int level) = 0;              // kept for getLevel
    virtual int GetGain(int channel) = 0;
    virtual bool SetGain(int channel, int gain) = 0;  // kept for GetGain(channel)
    virtual bool isMuted() = 0;
    virtual void setMuted(bool muted) = 0;            // kept for isMuted
    virtual bool getName() = 0;
    virtual void setName(const String16& name) = 0;   // not: getName answers a bool
    virtual int getDelay(int& unit) = 0;
    virtual void setDelay(int delay) = 0;             // not: getDelay writes an out-parameter
};

class IBrelManager : public RefBase {
public:
    virtual IPaired* getPaired() = 0;
};

}  // namespace android
