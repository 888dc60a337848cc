// Looking names up: comparison without regard to case, and the nearest right word for a wrong one.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace dialwright {

bool equalIgnoringCase(std::string_view a, std::string_view b);

// The name with the fewest changed characters, or an empty text when none is near.
std::string nearestName(std::string_view wrong, const std::vector<std::string_view>& names);

}  // namespace dialwright
