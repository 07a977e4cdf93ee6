#pragma once
#include <cstdint>
#include <string>

#include <utils/RefBase.h>

namespace android {

enum _EnumMode : int32_t {};

// Fields with initialisers, a text of fixed width, a record inside a record, constructors.
struct Point {
    int x = 0;
    int y = 0;

    Point() = default;
    Point(int px, int py) : x(px), y(py) {}
};

struct Area {
    char name[32] = {};
    Point corner;
    std::string note;
    bool shown = false;
};

static_assert(sizeof(Point) == 8, "two ints");

class IAreas : public RefBase {
public:
    virtual void addArea(Area area) = 0;
    virtual Area getArea(int id) = 0;
    virtual _EnumMode getMode() = 0;
    virtual void getCorner(int id, Point& corner) = 0;

protected:
    ~IAreas() override = default;
};

class IBrelManager : public RefBase {
public:
    virtual IAreas* getAreas() = 0;
};

}  // namespace android
