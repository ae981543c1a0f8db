// Every public header of the library, folder by folder.
#pragma once

#include "bexa/export.h"
#include "bexa/version.h"

#include "bexa/foundation/array_family.h"
#include "bexa/foundation/component_type.h"
#include "bexa/foundation/kanji.h"
#include "bexa/foundation/rsc_header.h"
#include "bexa/foundation/rsc_modes.h"
#include "bexa/foundation/vocabulary.h"
#include "bexa/foundation/ycore/array_find.h"
#include "bexa/foundation/ycore/integer_arrays.h"
#include "bexa/foundation/ygeneral/ykanji.h"
#include "bexa/foundation/ygeneral/ystring.h"
#include "bexa/foundation/ygeneral/ystring_array.h"
#include "bexa/foundation/yrsc/keyed_file.h"
#include "bexa/foundation/yrsc/token_reader.h"

#include "bexa/design/comp_kind.h"
