# bexa_strict(target): language level and warnings that hold for every target of this repository.
# Warnings become errors with CMAKE_COMPILE_WARNING_AS_ERROR, which the development presets set.
function(bexa_strict target)
  target_compile_features(${target} PRIVATE cxx_std_20)
  set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF)
  if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion)
  endif()
endfunction()
