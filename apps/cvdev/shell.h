#pragma once

#include "options.h"

namespace cvdev {

// Hands over to the interpreter, with app connected to the host folder.
int shell(Words arguments);

}  // namespace cvdev
