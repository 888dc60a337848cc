// What every dial draws with: the pen and the drawing window.
#pragma once

#include "sheet/pen.hpp"
#include "shell/window.hpp"
