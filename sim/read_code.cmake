# read_code(<file> <out>): the code of a C++ file made easy to match in CMake: comments out,
# blanks made one; ';' out and brackets made angle brackets, which CMake's lists would otherwise
# take for their own. For the readers of sim/ (names.cmake) and of service/ (record/forward.cmake).
function(read_code source out)
    file(READ "${source}" code)
    string(REGEX REPLACE "//[^\n]*" "" code "${code}")
    string(REPLACE ";" "" code "${code}")
    string(REPLACE "[" "<" code "${code}")
    string(REPLACE "]" ">" code "${code}")
    string(REGEX REPLACE "[ \t\r\n]+" " " code "${code}")
    set(${out} "${code}" PARENT_SCOPE)
endfunction()
