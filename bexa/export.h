// The export word of the library. Everything is hidden unless it carries BEXA_API.
#pragma once

#if defined(_WIN32)
#    if defined(BEXA_STATIC)
#        define BEXA_API
#    elif defined(BEXA_BUILDING)
#        define BEXA_API __declspec(dllexport)
#    else
#        define BEXA_API __declspec(dllimport)
#    endif
#else
#    define BEXA_API __attribute__((visibility("default")))
#endif
