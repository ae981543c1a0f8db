# Run by CTest, see CMakeLists.txt beside it for the variables. What the program prints must be the text of
# ${EXPECTED}.txt, and each file of the directory ${EXPECTED} must be what the program leaves behind. Beside those it
# leaves no file that wasn't there.
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
file(GLOB_RECURSE before RELATIVE "${SAMPLE}" "${SAMPLE}/*")
file(GLOB_RECURSE after RELATIVE "${SCRATCH}" "${SCRATCH}/*")
list(REMOVE_ITEM after ${before} ${files})
if(after)
  message(FATAL_ERROR "the program left behind ${after}")
endif()
file(REMOVE_RECURSE "${SCRATCH}")
