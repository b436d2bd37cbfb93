// Today's date as files and printed sheets bear it.
#pragma once

#include <string>

namespace quilm {

struct DateTime;

// "2026-05-04", whatever the system's language.
std::string ShortDate(const DateTime& day);

}  // namespace quilm
