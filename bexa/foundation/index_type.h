// What may stand between square brackets.
#pragma once

#include <concepts>

namespace bexa::detail {

// Any integer type and any enumeration that becomes an integer by itself. The sign in front makes an integer of a
// character and of an enumerator.
template <class T>
concept IndexType = requires(T index) {
    { +index } -> std::integral;
};

} // namespace bexa::detail
