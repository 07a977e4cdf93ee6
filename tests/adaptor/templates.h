#pragma once
#include <string>
#include <vector>

#include <utils/RefBase.h>

namespace android {

class IGrid : public RefBase {
public:
    virtual std::vector<std::vector<int>> getGrid(int rows, int columns) = 0;
    virtual void setLabels(const std::vector<std::string>& labels) = 0;
};

class IBrelManager : public RefBase {
public:
    virtual IGrid* getGrid() = 0;
};

}  // namespace android
