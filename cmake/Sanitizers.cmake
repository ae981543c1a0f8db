# Address and undefined-behaviour checks for everything that is built; the first finding ends the program.
option(BEXA_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)

set(BEXA_SANITIZE_FLAGS "")
if(BEXA_SANITIZE)
  set(BEXA_SANITIZE_FLAGS -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_compile_options(${BEXA_SANITIZE_FLAGS} -O1)
  add_link_options(${BEXA_SANITIZE_FLAGS})
endif()
