#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include <utils/String16.h>
#include <utils/String8.h>

#include "framework/ListCommand.h"
#include "framework/Rows.h"
#include "service/IFwTouchCtrl.h"
#include "service/ITouchCtrl.h"

namespace android {
namespace dumpbrel {

// TouchCtrl also lists the touch firmware, through a second interface.
class TouchCtrlCommand : public ListCommand {
public:
    explicit TouchCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "TouchCtrl Module"; }
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<ITouchCtrl> mTouchCtrl;
    sp<IFwTouchCtrl> mFwTouchCtrl;
};

TouchCtrlCommand::TouchCtrlCommand(DumpBrel& parent) : ListCommand(parent), mName("TouchCtrl") {
    // Both interfaces come from the one manager; only the first one's absence is reported.
    sp<IBrelManager> manager = mParent->getBrelManager();
    if (manager != nullptr) {
        mTouchCtrl = manager->getTouchCtrl();
        mFwTouchCtrl = manager->getFwTouchCtrl();
    }
    if (mTouchCtrl == nullptr) fputs("getTouchCtrl() fail\n", stderr);
}

Status TouchCtrlCommand::registerAllOptions() {
    addHelp();
    add("m", "getHidMode", kNone, mTouchCtrl, [](ITouchCtrl& touch, const Input&) {
        std::cout << "getHidMode= ";
        String16 mode = touch.getHidMode();
        std::cout << String8(mode).c_str() << '\n';
        return OK;
    });
    add("g:", "getParameter", kRequired, mTouchCtrl, [](ITouchCtrl& touch, const Input& in) {
        std::cout << "getParameter[" << in.text << "]= ";
        String16 value = touch.getParameter(String16(in.text));
        std::cout << String8(value).c_str() << '\n';
        return OK;
    });
    add("p:", "setParameter", kRequired, mTouchCtrl, [](ITouchCtrl& touch, const Input& in) {
        std::vector<std::string> field = in.fields(2);
        const std::string& key = field[0];
        const std::string& value = field[1];
        if (key.empty() || value.empty()) {
            std::cerr << "Key or Vaule is empty!" << '\n';
            return USAGE;
        }
        touch.setParameter(String16(key.c_str()), String16(value.c_str()));
        std::cout << "setParameter[" << key << "]= " << value << '\n';
        return OK;
    });
    add("n:", "addNoTouchArea", kRequired, mTouchCtrl, [](ITouchCtrl& touch, const Input& in) {
        if (in.missing()) return USAGE;
        TouchPoint p1(0, 0, 0);
        TouchPoint p2(0, 0, 0);
        auto rect = std::make_unique<TouchRect>(p1, p2, 0);
        // Rect id, then the two corners, x before y.
        std::vector<std::string> field = in.fields(5);
        const std::string& strRectid = field[0];
        const std::string& strP1x = field[1];
        const std::string& strP1y = field[2];
        const std::string& strP2x = field[3];
        const std::string& strP2y = field[4];
        std::cout << "strRectid = " << strRectid << '\n';
        std::cout << "strP1x = " << strP1x << '\n';
        std::cout << "strP1y = " << strP1y << '\n';
        std::cout << "strP2x = " << strP2x << '\n';
        std::cout << "strP2y = " << strP2y << '\n';
        rect->rect_id = atoi(strRectid.c_str());
        rect->rect_p1.point_x = atoi(strP1x.c_str());
        rect->rect_p1.point_y = atoi(strP1y.c_str());
        rect->rect_p2.point_x = atoi(strP2x.c_str());
        rect->rect_p2.point_y = atoi(strP2y.c_str());
        std::cout << "rect->rect_id = " << rect->rect_id << '\n';
        std::cout << "rect->rect_p1.point_x = " << rect->rect_p1.point_x << '\n';
        std::cout << "rect->rect_p1.point_y = " << rect->rect_p1.point_y << '\n';
        std::cout << "rect->rect_p2.point_x = " << rect->rect_p2.point_x << '\n';
        std::cout << "rect->rect_p2.point_y = " << rect->rect_p2.point_y << '\n';
        touch.addNoTouchArea(*rect);
        return OK;
    });
    add("smo:", "setPressureMode", kRequired, mTouchCtrl,
        printAtoiAndResult("setPressureMode: ", &ITouchCtrl::setPressureMode, ", ret = "));
    add("gmo", "getPressureMode", kNone, mTouchCtrl,
        printResult("getPressureMode: ", &ITouchCtrl::getPressureMode));
    add("saf:", "setAndroidForbiddenState", kRequired, mTouchCtrl,
        printAtoiAndResult("setAndroidForbiddenState: ",
                           &ITouchCtrl::setAndroidForbiddenState, ", ret = "));
    add("gaf", "getAndroidForbiddenState", kNone, mTouchCtrl, [](ITouchCtrl& touch, const Input&) {
        bool enabled = touch.getAndroidForbiddenState();
        std::cout << "getAndroidForbiddenState: " << (enabled ? "1 (Enabled)" : "0 (Disabled)")
                  << '\n';
        return OK;
    });
    // The firmware versions come from the second interface.
    add("l", "getFwTouchList", kNone, mFwTouchCtrl, [](IFwTouchCtrl& fwTouch, const Input&) {
        std::vector<EntityFwTouch> list;
        fwTouch.getFwTouchList(list);
        for (size_t i = 0; i < list.size(); ++i)
            std::cout << "touchFwVersion: " << list[i].touchCurrentVersion << '\n';
        return OK;
    });
    add("s:", "setTouchSmothingFliter", kRequired, mTouchCtrl,
        [](ITouchCtrl& touch, const Input& in) {
            if (in.missing()) return USAGE;
            int value = atoi(in.text);
            bool ret = touch.setTouchSmothingFliter(value);
            std::cout << "setTouchSmothingFliter: " << value << ", ret = " << (ret ? "ok" : "fail")
                      << '\n';
            return OK;
        });
    add("f", "getTouchSmothingFliter", kNone, mTouchCtrl,
        printResult("getTouchSmothingFliter: ", &ITouchCtrl::getTouchSmothingFliter));
    add("tarm", "getTouchAreaRecognitionMethod", kNone, mTouchCtrl,
        printResult("getTouchAreaRecognitionMethod: ", &ITouchCtrl::getTouchAreaRecognitionMethod));
    add("gpn", "getpennum", kNone, mTouchCtrl,
        printResult("getpennum: ", &ITouchCtrl::getpennum));
    add("spn", "setpennum", kRequired, mTouchCtrl, [](ITouchCtrl& touch, const Input& in) {
        if (in.missing()) return USAGE;
        int value = atoi(in.text);
        bool ret = touch.setpennum(value);
        std::cout << "setpennum: " << value << ", ret = " << (ret ? "ok" : "fail") << '\n';
        return OK;
    });
    return OK;
}

std::unique_ptr<ListCommand> newTouchCtrlCommand(DumpBrel& parent) {
    return std::make_unique<TouchCtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
