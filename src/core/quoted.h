// Text from a file, quoted for a message: it cannot act on the terminal or fill the screen.
#pragma once

#include <string>
#include <string_view>

namespace qb {

// The text between double quotes, control bytes written as \xNN (so an escape sequence cannot
// recolour the terminal and a line feed cannot split a message), cut after about 60 characters.
std::string Quoted(std::string_view s);

}  // namespace qb
