#pragma once

// The table of the service's shape, written from its declarations at build time
// (adaptor/generate.py, Shape.cpp in the build): every interface with its accessor, every
// operation with its parameters (name, type, direction) and its result, the records and their
// fields, and the setters whose value the simulated panel's memory keeps, with their getters.

#include <string_view>

namespace adaptor __attribute__((visibility("hidden"))) {

// How a value crosses the interface, as a profile and the trace write it.
enum class Kind : unsigned char {
    Bool,     // true / false
    Integer,  // integers and enumerations
    Float,    // a number, "inf", "-inf" or "nan"
    Text,     // String16, std::string, const char*, char[N]
    Record,   // an object of its fields
    Vector,   // an array
    Array,    // an array of a fixed size
};

struct Record;

struct Type {
    Kind kind;
    const char* cpp;        // as declared: "int", "String16", "std::vector<EntityFwTouch>"
    const Type* element;    // of a vector or an array
    const Record* record;   // of a record
    unsigned size;          // an array's elements; the bytes of a fixed text (char[N])
};

struct Field {
    const char* name;
    const Type& type;
};

struct Record {
    const char* name;
    const Field* fields;
    unsigned count;
};

struct Parameter {
    const char* name;
    const Type& type;
    bool out;  // written by the service: an out-parameter, or an array it fills
};

struct Operation {
    const char* name;
    const Type* result;  // null: it answers nothing
    const Parameter* parameters;
    unsigned count;
    unsigned ins;   // how many parameters are in-arguments
    int getter;     // a setter the memory keeps: its getter's index in the interface; else -1
};

struct Interface {
    const char* name;      // "IAudioCtrl", as profiles and the trace name it
    const char* accessor;  // "getAudioCtrl", the manager's, as BREL_SIM_ABSENT names it
    const Operation* operations;
    unsigned count;
};

struct Service {
    const Interface* interfaces;
    unsigned count;
    const Record* const* records;
    unsigned recordCount;

    const Interface* find(std::string_view name) const {
        for (unsigned i = 0; i < count; ++i)
            if (name == interfaces[i].name) return &interfaces[i];
        return nullptr;
    }
    static const Operation* find(const Interface& in, std::string_view name) {
        for (unsigned i = 0; i < in.count; ++i)
            if (name == in.operations[i].name) return &in.operations[i];
        return nullptr;
    }
};

extern const Service kService;

}  // namespace adaptor
