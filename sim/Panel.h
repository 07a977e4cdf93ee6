#pragma once

// The simulated panel: the host's stand-in for the vendor's client library, the generated
// adaptor over a backend that answers from the panel's memory (BREL_SIM_STATE), the profile in
// force (BREL_SIM_PANEL, or the built-in one, sim/panel.json) and neutrally for the rest, and
// writes the trace (BREL_SIM_TRACE). Its one entry is BrelCreator::create(); this is what tools
// see besides.

namespace sim {

struct __attribute__((visibility("default"))) Panel {
    // Forgets the parsed profiles, the memory, the absence list, the answers given in order and
    // the lines written: a new run begins, which reads the environment again.
    static void reset();
};

}  // namespace sim
