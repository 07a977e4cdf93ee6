#pragma once
#include <utils/RefBase.h>  // a comment after a directive

namespace android {

/* virtual int hidden() = 0;   a declaration inside a block comment is no operation
   of the interface */
class ICommented : public RefBase {
public:
    // virtual int alsoHidden() = 0;
    virtual int /* the result */ getLevel(/* no parameter */) = 0;
    virtual bool setLevel(int level /* 0 to 9 */) = 0;  // a comment at the end
};

class IBrelManager : public RefBase {
public:
    virtual ICommented* getCommented() = 0;
};

}  // namespace android
