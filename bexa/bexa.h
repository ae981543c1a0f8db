#pragma once

// Every public header of the library.
#include "bexa/export.h"
#include "bexa/version.h"
