# Run by CTest, see CMakeLists.txt beside it for the variables.
cmake_minimum_required(VERSION 3.25)

set(prefix "${SCRATCH}/prefix")
set(program "${SCRATCH}/build/consumer")

function(run)
  execute_process(COMMAND ${ARGV} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

function(build_with_find_package)
  string(JOIN " " flags ${FLAGS})
  run("${CMAKE_COMMAND}" -S "${CONSUMER}" -B "${SCRATCH}/build" -G "${GENERATOR}"
    "-DCMAKE_BUILD_TYPE=${CONFIGURATION}" "-DCMAKE_CXX_COMPILER=${COMPILER}" "-DCMAKE_CXX_FLAGS=${flags}"
    "-DCMAKE_PREFIX_PATH=${prefix}")
  run("${CMAKE_COMMAND}" --build "${SCRATCH}/build")
endfunction()

function(build_with_pkg_config)
  set(ENV{PKG_CONFIG_PATH} "${prefix}/${LIBDIR}/pkgconfig")
  execute_process(COMMAND pkg-config --cflags --libs bexa
    OUTPUT_VARIABLE options OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  separate_arguments(options UNIX_COMMAND "${options}")
  file(MAKE_DIRECTORY "${SCRATCH}/build")
  run("${COMPILER}" -std=c++20 ${FLAGS} "${CONSUMER}/main.cpp" ${options} -o "${program}")
endfunction()

# The installed tree is moved before it is used: nothing in it may hold on to where it was installed.
file(REMOVE_RECURSE "${SCRATCH}")
run("${CMAKE_COMMAND}" --install "${BUILD_DIR}" --config "${CONFIGURATION}" --prefix "${SCRATCH}/first")
file(RENAME "${SCRATCH}/first" "${prefix}")
foreach(language IN ITEMS eng jpn)
  if(NOT EXISTS "${prefix}/${DATADIR}/bexa/msg/${language}/bexa.rsc")
    message(FATAL_ERROR "no message catalogue in the language '${language}'")
  endif()
endforeach()

cmake_language(CALL "build_with_${WAY}")

set(ENV{LD_LIBRARY_PATH} "${prefix}/${LIBDIR}")
execute_process(COMMAND "${program}"
  OUTPUT_VARIABLE version OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
if(NOT version STREQUAL VERSION)
  message(FATAL_ERROR "the installed library says version '${version}', expected '${VERSION}'")
endif()
file(REMOVE_RECURSE "${SCRATCH}")
