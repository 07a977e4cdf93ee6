#pragma once

#include <utils/RefBase.h>
#include <utils/String16.h>

namespace android {

class INetworkCtrl : public RefBase {
public:
    virtual String16 getAntennaRssi(int antenna) = 0;
    virtual int setMcuDhcpEnable(bool enable) = 0;
    virtual int setMcuDhcpIp(const String16& ip) = 0;
    virtual int setMcuDhcpGw(const String16& gateway) = 0;
    virtual int setMcuDhcpMsk(const String16& mask) = 0;
    virtual bool SetWOLEnable(bool enable) = 0;
    virtual bool GetWOLEnable() = 0;
    virtual bool SetWOWEnable(bool enable) = 0;
    virtual bool GetWOWEnable() = 0;
    virtual bool getWifiDongleStatus() = 0;
    virtual bool setMcuToControlMonitorNetwork(bool enable) = 0;
    virtual bool disableApUsbDevice(bool disable) = 0;
    virtual bool setSharingDirection(bool direction) = 0;
    virtual bool getSharingDirection() = 0;
    virtual bool setAndroidToPcSharing(bool enable) = 0;
    virtual bool getAndroidToPcSharing() = 0;
    virtual bool setHotspotSharing(bool enable) = 0;
    virtual bool getHotspotSharing() = 0;

protected:
    ~INetworkCtrl() override = default;
};

}  // namespace android
