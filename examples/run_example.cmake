# Run by CTest, see CMakeLists.txt beside it for the variables. What the program prints must be the text of
# ${EXPECTED}.txt, and each file of the directory ${EXPECTED} must be what the program leaves behind.
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE "${SCRATCH}")
file(COPY "${SAMPLE}/" DESTINATION "${SCRATCH}")
set(ENV{YDSROOT} "${SCRATCH}/system")
set(ENV{HOME} "${SCRATCH}")
set(ENV{LC_ALL} C)
execute_process(COMMAND "${PROGRAM}" ${ARGUMENTS} WORKING_DIRECTORY "${SCRATCH}"
  OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)

file(READ "${EXPECTED}.txt" expected)
if(NOT output STREQUAL expected)
  message(FATAL_ERROR "expected\n${expected}\nbut the program printed\n${output}")
endif()
file(GLOB_RECURSE files RELATIVE "${EXPECTED}" "${EXPECTED}/*")
foreach(file IN LISTS files)
  execute_process(COMMAND "${CMAKE_COMMAND}" -E compare_files "${SCRATCH}/${file}" "${EXPECTED}/${file}"
    COMMAND_ERROR_IS_FATAL ANY)
endforeach()
file(REMOVE_RECURSE "${SCRATCH}")
