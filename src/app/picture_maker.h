// Makes the picture of the form that is on the screen.
#pragma once

#include <cstdint>
#include <memory>

#include "app/grid_view.h"
#include "app/picture.h"

namespace app {

/// Everything of `form` that is to be seen, frames before what they hold. An empty picture for nullptr.
std::shared_ptr<const Picture> makePicture(const screen::Form* form, GridViews& gridViews, std::uint64_t number);

}  // namespace app
