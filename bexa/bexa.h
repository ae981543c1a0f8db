// Every public header of the library, folder by folder.
#pragma once

#include "bexa/export.h"
#include "bexa/version.h"

#include "bexa/foundation/array_family.h"
#include "bexa/foundation/ycore/array_find.h"
#include "bexa/foundation/ycore/integer_arrays.h"
#include "bexa/foundation/ygeneral/ystring.h"
#include "bexa/foundation/ygeneral/ystring_array.h"
