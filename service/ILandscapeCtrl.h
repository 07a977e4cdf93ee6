#pragma once

#include <string>
#include <vector>

#include <utils/RefBase.h>

namespace android {

class ILandscapeCtrl : public RefBase {
public:
    virtual void setLandscapeAppList(const std::vector<std::string>& list) = 0;
    virtual std::vector<std::string> getLandscapeApp() = 0;

protected:
    ~ILandscapeCtrl() override = default;
};

}  // namespace android
