#pragma once
#include <vector>

#include <utils/RefBase.h>
#include <utils/String16.h>

namespace android {

struct Reading {
    int channel = 0;
    char label[16] = {};
};

class IMeter : public RefBase {
public:
    /* Fills `readings` with one entry per channel of `group` and answers how many channels
       the group has. */
    virtual int getReadings(const String16& group,
                            std::vector<Reading>& readings) = 0;
};

class IBrelManager : public RefBase {
public:
    virtual IMeter* getMeter() = 0;
};

}  // namespace android
