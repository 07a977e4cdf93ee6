#pragma once
#include <utils/RefBase.h>

namespace android {

constexpr int kSamples = 8;

class ISampler : public RefBase {
public:
    virtual int getSamples(int samples[kSamples]) = 0;
    virtual bool setSamples(const int samples[4], int count) = 0;
    virtual bool setName(const char* name) = 0;
};

class IBrelManager : public RefBase {
public:
    virtual ISampler* getSampler() = 0;
};

}  // namespace android
