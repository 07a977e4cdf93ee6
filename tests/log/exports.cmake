# The program's dynamic symbols: the log facility's four functions (T), its 32-byte key (R) and,
# unless sanitizers add their own, no other function of the program. Library data (B, V) and
# weak inline functions (W) that the linker lists for the shared libraries are left alone.
#   cmake -DNM=<nm> -DBINARY=<dumpbrel> -DSANITIZE=<ON|OFF> -P exports.cmake

cmake_minimum_required(VERSION 3.18)

execute_process(COMMAND ${NM} -D -S --defined-only ${BINARY}
  OUTPUT_VARIABLE listing RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "${NM} failed on ${BINARY}: ${status}")
endif()

# A sanitizer's runtime linked into the program exports functions of its own.
if(listing MATCHES "[ \n]__(asan|ubsan|sanitizer)_")
  set(SANITIZE ON)
endif()

set(functions BrelLog Brel_Log_Init setLogLevel getLogLevel)
set(failures "")
foreach(name IN LISTS functions)
  if(NOT listing MATCHES "[0-9a-f]+ [0-9a-f]+ T ${name}\n")
    list(APPEND failures "${name} is no exported function")
  endif()
endforeach()
if(NOT listing MATCHES "[0-9a-f]+ 0+20 R PROP_BREL_SER_LOG_LEVEL\n")
  list(APPEND failures "PROP_BREL_SER_LOG_LEVEL is no exported 32-byte constant")
endif()
string(REGEX MATCHALL "[0-9a-f]+ [0-9a-f]+ T [^\n]+" exported "${listing}")
foreach(line IN LISTS exported)
  string(REGEX REPLACE ".* T " "" name "${line}")
  if(NOT name IN_LIST functions AND NOT SANITIZE)
    list(APPEND failures "unexpected exported function ${name}")
  endif()
endforeach()

if(failures)
  list(JOIN failures "\n  " text)
  message(FATAL_ERROR "exports of ${BINARY}:\n  ${text}\n${listing}")
endif()
message(STATUS "exports of ${BINARY}: as expected")
