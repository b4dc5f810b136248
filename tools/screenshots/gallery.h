#pragma once

#include "wishes.h"

namespace Gallery {

/// The index page over all pictures.
bool write(const Wishes &wishes);

} // namespace Gallery
