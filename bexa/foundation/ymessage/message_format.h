// Filling arguments into a message.
#pragma once

#include <cstdarg>
#include <string>
#include <string_view>

namespace bexa::detail {

// The text of `format` with the arguments filled in, by the rules of YMsgOut::getShortMsg. A width or a precision above
// 1023 counts as 1023. What a conversion has no use for (a precision of `%c`, the flag "#" of `%d`) is passed over.
std::string formatMessage(std::string_view format, va_list arguments);

} // namespace bexa::detail
