// The polar style of a flat dial, which the report shares with the dials.
#pragma once

#include "shell/style_triangle.hpp"
