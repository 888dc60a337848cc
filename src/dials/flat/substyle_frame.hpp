// The substyle's frame of a vertical dial, which the report shares with the dials.
#pragma once

#include "dials/pen.hpp"
#include "shell/substyle_frame.hpp"
