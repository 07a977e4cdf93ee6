#pragma once

#include <utils/RefBase.h>

namespace android {

class IProjectId : public RefBase {
public:

protected:
    ~IProjectId() override = default;
};

}  // namespace android
