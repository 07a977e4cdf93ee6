# Writes record/Forward.cpp, the recorder's forwarding: for every interface of service/ a class
# that passes each operation through (record/Pass.h), and the manager whose accessors hand them
# out. It is written from the declarations themselves, so a new operation needs no line here;
# the test record_forward fails while the file checked in is not what this writes.
#
#   cmake -DSERVICE_DIR=<service/> -DOUTPUT=<file> -P record/forward.cmake
#
# An argument is passed as declared, but a non-const reference, an out-parameter named as in
# the declaration, and a pointer other than a text: an array of the size of the header's
# constexpr int, which the service fills (non-const) or reads (const).

cmake_minimum_required(VERSION 3.18)

include(${CMAKE_CURRENT_LIST_DIR}/../sim/read_code.cmake)

set(declaration "virtual ([^()]*[^ ()]) ([A-Za-z_][A-Za-z0-9_]*)\\(([^()]*)\\) ?(const )?= 0")
set(includes "")
set(classes "")
set(operations 0)
file(GLOB headers "${SERVICE_DIR}/I*.h")
list(SORT headers)
foreach(header IN LISTS headers)
    get_filename_component(iface "${header}" NAME_WE)
    string(APPEND includes "#include \"service/${iface}.h\"\n")
    if(iface STREQUAL "IBrelManager")
        continue()
    endif()
    read_code("${header}" code)
    string(REGEX MATCH "constexpr int ([A-Za-z0-9_]+)" ignored "${code}")
    set(size "${CMAKE_MATCH_1}")
    string(SUBSTRING "${iface}" 1 -1 name)
    string(APPEND classes "struct Rec${name} : Pass<${iface}> { using Pass::Pass;\n")
    string(REGEX MATCHALL "${declaration}" found "${code}")
    foreach(each IN LISTS found)
        string(REGEX MATCH "^${declaration}$" ignored "${each}")
        set(result "${CMAKE_MATCH_1}")
        set(op "${CMAKE_MATCH_2}")
        string(STRIP "${CMAKE_MATCH_3}" params)
        set(arguments "")
        if(params)
            string(REPLACE "," ";" list "${params}")
            foreach(param IN LISTS list)
                string(STRIP "${param}" param)
                string(REGEX MATCH "^(.*[^A-Za-z0-9_])([A-Za-z_][A-Za-z0-9_]*)$" ignored "${param}")
                string(STRIP "${CMAKE_MATCH_1}" type)
                set(arg "${CMAKE_MATCH_2}")
                if(type MATCHES "&$" AND NOT type MATCHES "^const ")
                    set(arg "sim::out(\"${arg}\", ${arg})")
                elseif(type MATCHES "\\*$" AND NOT type MATCHES "char ?\\*$")
                    if(NOT size)
                        message(FATAL_ERROR "${header}: ${op}: an array without a constexpr int size")
                    endif()
                    if(type MATCHES "^const ")
                        set(arg "sim::inArray(${arg}, ${size})")
                    else()
                        set(arg "sim::outArray(\"${arg}\", ${arg}, ${size})")
                    endif()
                endif()
                string(APPEND arguments ", ${arg}")
            endforeach()
        endif()
        string(APPEND classes "    ${result} ${op}(${params}) override { return pass(__func__, &${iface}::${op}${arguments}); }\n")
        math(EXPR operations "${operations} + 1")
    endforeach()
    string(APPEND classes "};\n")
endforeach()

# The manager: every accessor, in the order of the library's table.
read_code("${SERVICE_DIR}/IBrelManager.h" code)
string(REGEX MATCHALL "virtual I[A-Za-z0-9_]*\\* get[A-Za-z0-9_]*\\(\\)" accessors "${code}")
set(manager "#define RECORD_CONTROLS(X)")
set(count 0)
foreach(each IN LISTS accessors)
    string(REGEX MATCH "virtual I([A-Za-z0-9_]*)\\* get" ignored "${each}")
    math(EXPR count "${count} % 5 + 1")
    if(count EQUAL 1)
        string(APPEND manager " \\\n   ")
    endif()
    string(APPEND manager " X(${CMAKE_MATCH_1})")
endforeach()

file(WRITE "${OUTPUT}" "// Written by record/forward.cmake from the declarations of service/ (${operations} operations);
// the test record_forward compares. Rewrite it with:
//   cmake -DSERVICE_DIR=service -DOUTPUT=record/Forward.cpp -P record/forward.cmake

#include \"Pass.h\"
${includes}
namespace record {

namespace {

using namespace android;

${classes}
// The accessors of the library's manager, in the order of its table.
${manager}

// The library's manager: each accessor's control passes through, or null is written absent.
class RecBrelManager : public IBrelManager {
public:
    explicit RecBrelManager(IBrelManager* real) : mReal(real) {}

#define RECORD_ACCESSOR(Name) \\
    I##Name* get##Name() override { return control<Rec##Name>(\"get\" #Name, \"I\" #Name, &IBrelManager::get##Name); }
    RECORD_CONTROLS(RECORD_ACCESSOR)

private:
    sp<IBrelManager> mReal;

    template <typename Rec, typename I>
    I* control(const char* accessor, const char* name, I* (IBrelManager::*get)()) {
        I* real = (mReal.get()->*get)();
        if (real == nullptr) absent(accessor);
        return real == nullptr ? nullptr : new Rec(name, real);
    }
};

}  // namespace

IBrelManager* wrap(IBrelManager* real) {
    return real == nullptr ? nullptr : new RecBrelManager(real);
}

}  // namespace record
")
