#pragma once

namespace android {

class IBrelManager;

// Entry point of the vendor client library: hands out the service's manager, or null when the
// service cannot be reached. May be called any number of times.
class BrelCreator {
public:
    static IBrelManager* create();
};

}  // namespace android
