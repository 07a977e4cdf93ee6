#pragma once

#include <utils/RefBase.h>
#include <utils/String16.h>

namespace android {

// One point on the touch surface.
struct TouchPoint {
    int point_id = 0;
    int point_x = 0;
    int point_y = 0;

    TouchPoint() = default;
    TouchPoint(int x, int y, int id) : point_id(id), point_x(x), point_y(y) {}
};

// A rectangle on the touch surface, given by two corners.
struct TouchRect {
    int rect_id = 0;
    TouchPoint rect_p1;
    TouchPoint rect_p2;

    TouchRect() = default;
    TouchRect(const TouchPoint& p1, const TouchPoint& p2, int id)
        : rect_id(id), rect_p1(p1), rect_p2(p2) {}
};

class ITouchCtrl : public RefBase {
public:
    virtual int getpennum() = 0;
    virtual bool setpennum(int value) = 0;
    virtual String16 getParameter(const String16& key) = 0;
    virtual void setParameter(const String16& key, const String16& value) = 0;
    virtual void addNoTouchArea(TouchRect rect) = 0;
    virtual String16 getHidMode() = 0;
    virtual bool setPressureMode(int mode) = 0;
    virtual int getPressureMode() = 0;
    virtual bool setAndroidForbiddenState(int state) = 0;
    virtual bool getAndroidForbiddenState() = 0;
    virtual bool setTouchSmothingFliter(int value) = 0;
    virtual int getTouchSmothingFliter() = 0;
    virtual int getTouchAreaRecognitionMethod() = 0;

protected:
    ~ITouchCtrl() override = default;
};

}  // namespace android
