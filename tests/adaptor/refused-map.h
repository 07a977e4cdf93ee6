#pragma once
#include <map>
#include <string>

#include <utils/RefBase.h>

namespace android {

class INames : public RefBase {
public:
    virtual bool setNames(const std::map<std::string, int>& names, int count) = 0;
};

}  // namespace android
