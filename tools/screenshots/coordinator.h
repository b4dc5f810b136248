#pragma once

#include "wishes.h"

/// One process a scale, because a process has one scale, several side by side.
namespace Coordinator {

/// True when all of them ended well and the index page is written.
bool run(const Wishes &wishes);

} // namespace Coordinator
