#pragma once

#include <utils/RefBase.h>

namespace android {

class ISourceCtrl : public RefBase {
public:
    virtual int getChannelList() = 0;
    virtual int getCurInputSource() = 0;
    virtual int setCurInputSource(int sourceId) = 0;
    virtual void setHdmiRxEdidVersion(int sourceId, int version) = 0;
    virtual int getHdmiRxEdidVersion(int sourceId) = 0;
    virtual int setHdmiStandbyEn(bool enable) = 0;
    virtual int getHdmiStandbyEn() = 0;

protected:
    ~ISourceCtrl() override = default;
};

}  // namespace android
