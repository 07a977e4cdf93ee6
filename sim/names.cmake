# Writes kNames (sim/Panel.h), the names the simulated panel has, against which a profile is
# checked when it is first read. They come from the controls themselves, so there is no second
# list to keep: the Control("IName", ...) of each sim/<Name>.cpp, its operations' one-line
# definitions (R op(params) override { return call<R>(__func__, ...); }), the names given to
# out() and outArray() there, and the SIM_RECORD declarations. A record's fields are named one
# level deep: no record that a profile can reach holds another.
#
# It also writes kPairs, the setters whose value BREL_SIM_STATE keeps as a getter's answer:
# setX or SetX with getX, GetX, isX or IsX of the same control, when the getter returns the type
# of the setter's last in-argument and takes the setter's other in-arguments, in order and of the
# same types (const, & and android:: aside). Operations with out-parameters pair with nothing.
#
# With CMake 3.19 or later (string(JSON)) it also checks that each control's built-in profile
# (kDefaults) names only its operations, so that a slip there fails the build instead of leaving
# an operation neutral.
#
#   cmake -DSIM_DIR=<sim/> -DOUTPUT=<generated .cpp> -P sim/names.cmake

cmake_minimum_required(VERSION 3.18)

file(GLOB sources "${SIM_DIR}/*.cpp" "${SIM_DIR}/Records.h")
list(SORT sources)

include(${CMAKE_CURRENT_LIST_DIR}/read_code.cmake)

# First the records, wherever they are declared: "=Type field field...".
set(records "")
set(record_lines "")
foreach(source IN LISTS sources)
    read_code("${source}" code)
    string(REGEX MATCHALL "SIM_RECORD\\([^()]*\\)" declarations "${code}")
    foreach(declaration IN LISTS declarations)
        string(REGEX MATCH "^SIM_RECORD\\(([A-Za-z0-9_:]+) ?, ?([^()]*[^() ]) ?\\)$" ignored
               "${declaration}")
        if(NOT CMAKE_MATCH_1)
            message(FATAL_ERROR "${source}: cannot read ${declaration}")
        endif()
        set(fields "${CMAKE_MATCH_2}")
        string(REGEX REPLACE ".*:" "" type "${CMAKE_MATCH_1}")
        string(REGEX REPLACE " ?, ?" " " fields "${fields}")
        list(APPEND records "${type}")
        string(APPEND record_lines "    \"=${type} ${fields}\\n\"\n")
    endforeach()
endforeach()

# What names a value of C++ type `type` holds: "." none, "Type" a record's fields, "[Type" those
# of each record in a sequence.
function(value_shape type sequence out)
    set(shape ".")
    string(REGEX MATCHALL "[A-Za-z_][A-Za-z0-9_]*" words "${type}")
    foreach(word IN LISTS words)
        if(word IN_LIST records)
            set(shape "${word}")
            string(FIND "${type}" "vector<" vector)
            if(sequence OR NOT vector EQUAL -1)
                set(shape "[${word}")
            endif()
        endif()
    endforeach()
    set(${out} "${shape}" PARENT_SCOPE)
endfunction()

# A C++ type as the pairs compare it.
function(plain_type type out)
    string(REGEX REPLACE "(^| )const |&|android::| " "" type "${type}")
    set(${out} "${type}" PARENT_SCOPE)
endfunction()

# Then the interfaces: "IName", and under it " op N R out:S...", N the number of in-arguments,
# R and S shapes ("-": returns nothing).
set(interface_lines "")
set(pair_lines "")
foreach(source IN LISTS sources)
    read_code("${source}" code)
    string(REGEX MATCHALL "__func__" uses "${code}")
    list(LENGTH uses expected)
    if(expected EQUAL 0)
        continue()
    endif()
    if(NOT code MATCHES "Control\\(\"([A-Za-z0-9_]+)\"")
        message(FATAL_ERROR "${source}: operations without a Control(\"IName\", ...)")
    endif()
    set(interface "${CMAKE_MATCH_1}")
    string(APPEND interface_lines "    \"${interface}\\n\"\n")
    set(ops "")
    set(setters "")

    string(REGEX MATCHALL
           "[A-Za-z_][A-Za-z0-9_]* ?\\([^()]*\\) ?(const )?override ?{[^{}]*__func__[^{}]*}"
           definitions "${code}")
    foreach(definition IN LISTS definitions)
        string(REGEX MATCH "^([A-Za-z_][A-Za-z0-9_]*) ?\\(([^()]*)\\)" ignored "${definition}")
        set(op "${CMAKE_MATCH_1}")
        set(params "${CMAKE_MATCH_2}")
        if(definition MATCHES "call ?\\(__func__")
            set(result "-")
            set(type "-")
        elseif(definition MATCHES "call<(.*)> ?\\(__func__")
            value_shape("${CMAKE_MATCH_1}" FALSE result)
            plain_type("${CMAKE_MATCH_1}" type)
        else()
            message(FATAL_ERROR "${source}: ${op} does not call(__func__, ...) as the others do")
        endif()
        set(line " ${result}")
        set(signature "${type}")  # the result's type, then " in" per in-argument, "|out" if any

        string(REPLACE "," ";" params "${params}")
        set(in_params "")
        string(REGEX MATCHALL
               "[^A-Za-z0-9_](out|outArray)\\(\"[A-Za-z0-9_]+\" ?, ?[A-Za-z_][A-Za-z0-9_]*"
               outs "${definition}")
        foreach(out IN LISTS outs)
            string(REGEX MATCH "(out|outArray)\\(\"([A-Za-z0-9_]+)\" ?, ?(.*)$" ignored "${out}")
            set(kind "${CMAKE_MATCH_1}")
            set(name "${CMAKE_MATCH_2}")
            set(ref "${CMAKE_MATCH_3}")
            set(type "")
            foreach(param IN LISTS params)
                if(param MATCHES "^(.*[^A-Za-z0-9_])${ref} ?$")
                    set(type "${CMAKE_MATCH_1}")
                endif()
            endforeach()
            if(type STREQUAL "")
                message(FATAL_ERROR
                        "${source}: ${op}: ${kind}(\"${name}\", ${ref}) names no parameter")
            endif()
            if(kind STREQUAL "outArray")
                value_shape("${type}" TRUE shape)
            else()
                value_shape("${type}" FALSE shape)
            endif()
            string(APPEND line " ${name}:${shape}")
            list(APPEND in_params "${ref}")
        endforeach()
        set(inputs 0)
        foreach(param IN LISTS params)
            if(param MATCHES "^(.*[^A-Za-z0-9_])([A-Za-z_][A-Za-z0-9_]*) ?$"
               AND NOT CMAKE_MATCH_2 IN_LIST in_params)
                plain_type("${CMAKE_MATCH_1}" type)
                string(APPEND signature " ${type}")
                math(EXPR inputs "${inputs} + 1")
            endif()
        endforeach()
        if(outs)
            string(APPEND signature "|out")
        endif()
        set(signature_${op} "${signature}")
        if(op MATCHES "^[sS]et(.+)$")
            list(APPEND setters "${op}")
        endif()
        string(APPEND interface_lines "    \" ${op} ${inputs}${line}\\n\"\n")
        list(APPEND ops "${op}")
    endforeach()

    # The pairs: a setter's in-arguments are its getter's, then the getter's result.
    foreach(setter IN LISTS setters)
        string(REGEX REPLACE "^[sS]et" "" stem "${setter}")
        string(REGEX MATCH "^[^ |]+(( [^ |]+)*) ([^ |]+)$" ignored "${signature_${setter}}")
        if(NOT ignored)
            continue()  # no in-argument, or out-parameters
        endif()
        set(wanted "${CMAKE_MATCH_3}${CMAKE_MATCH_1}")
        foreach(getter get${stem} Get${stem} is${stem} Is${stem})
            if(getter IN_LIST ops AND signature_${getter} STREQUAL wanted)
                string(APPEND pair_lines "    \"${interface} ${setter} ${getter}\\n\"\n")
                break()
            endif()
        endforeach()
    endforeach()
    foreach(op IN LISTS ops)
        unset(signature_${op})
    endforeach()

    list(LENGTH ops found)
    if(NOT found EQUAL expected)
        message(FATAL_ERROR "${source}: ${expected} operations, ${found} read: keep each on the "
                "form R op(params) override { return call<R>(__func__, ...); }")
    endif()

    # The built-in profile names only these operations.
    file(READ "${source}" text)
    if(CMAKE_VERSION VERSION_GREATER_EQUAL 3.19 AND text MATCHES "kDefaults = R\"\\((.*)\\)\"")
        set(defaults "${CMAKE_MATCH_1}")
        string(JSON count ERROR_VARIABLE error LENGTH "${defaults}")
        if(error)
            message(FATAL_ERROR "${source}: the built-in profile: ${error}")
        endif()
        if(count GREATER 0)
            math(EXPR last "${count} - 1")
            foreach(i RANGE ${last})
                string(JSON key MEMBER "${defaults}" ${i})
                if(NOT key IN_LIST ops)
                    message(FATAL_ERROR "${source}: the built-in profile names "
                            "${interface}.${key}, which is no operation of the control")
                endif()
            endforeach()
        endif()
    endif()
endforeach()

set(generated "// Generated by sim/names.cmake from the controls in sim/: do not edit.

#include \"sim/Panel.h\"

const char sim::kNames[] =
    \"\\n\"
${record_lines}${interface_lines}    \"\";

// \"IName setter getter\", one line each, every line after a '\\n'.
const char sim::kPairs[] =
    \"\\n\"
${pair_lines}    \"\";
")
file(WRITE "${OUTPUT}" "${generated}")
