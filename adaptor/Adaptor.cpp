#include "adaptor/Adaptor.h"

namespace adaptor {

std::string Call::argumentsText(unsigned from, unsigned to) const {
    std::string text;
    unsigned in = 0;
    for (unsigned i = 0; i < op.count && in < to; ++i) {
        const Parameter& p = op.parameters[i];
        if (p.out) continue;
        if (in >= from) {
            if (in > from) text += ", ";
            traceText(text, arguments[in], p.type);
        }
        ++in;
    }
    return text;
}

std::string Call::key() const {
    if (op.ins == 0) return op.name;
    return op.name + ("(" + argumentsText(0, op.ins)) + ")";
}

std::string Call::line() const {
    std::string text = std::string(iface.name) + "." + op.name + "(" + argumentsText(0, op.ins) + ")";
    if (op.result) {
        text += " -> ";
        traceText(text, result, *op.result);
    }
    return text;
}

}  // namespace adaptor
