# The checks of the source as tests, so that one summary speaks for everything.
set(tools ${PROJECT_SOURCE_DIR}/tools)

add_test(NAME "source: no include goes up a level and no module is in a cycle" COMMAND python3 ${tools}/check_includes.py)
add_test(NAME "source: words, blanks, file openings and lengths are as agreed" COMMAND python3 ${tools}/check_words.py)
add_test(NAME "source: every file is formatted as clang-format wants it" COMMAND python3 ${tools}/check_format.py)
add_test(NAME "tools: the checks find the faults they are there for"
         COMMAND python3 -B -m unittest discover --start-directory ${CMAKE_CURRENT_SOURCE_DIR}/tools --pattern "*_test.py")

# It takes all processors itself, and longer than a test usually may when it looks at everything. A remembered cost
# makes ctest start it first.
set(tidy "source: clang-tidy finds nothing in the changed files")
add_test(NAME ${tidy} COMMAND python3 ${tools}/check_tidy.py ${CMAKE_BINARY_DIR})
cmake_host_system_information(RESULT processors QUERY NUMBER_OF_LOGICAL_CORES)
set_tests_properties(${tidy} PROPERTIES PROCESSORS ${processors} COST 1000 TIMEOUT 7200)
