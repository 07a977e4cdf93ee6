#pragma once

#include <utils/RefBase.h>
#include <utils/String16.h>

namespace android {

// The Widevine key and the attestation key that the service holds.
class IAtCfgControl : public RefBase {
public:
    virtual String16 readWidevinevKey() = 0;
    virtual bool installWidevineKey(const String16& keyText) = 0;
    virtual bool deleteWidevineKey() = 0;
    virtual String16 readAttestationKey() = 0;
    virtual bool installAttestationKey(const String16& keyText) = 0;
    virtual bool deleteAttestationKey() = 0;

protected:
    ~IAtCfgControl() override = default;
};

}  // namespace android
