// The pictures of the pages: how they are named and shown. Each lies in the folder `pictures` of
// the help twice, NAME.png and, at twice the size for fine screens, NAME@2x.png.
#pragma once

#include "generator/template.h"

#include <string>

namespace arbolith::help {

/// In pixels of a usual screen.
struct PictureSize {
    int width = 0;
    int height = 0;
};

/// All charts that the build draws.
inline constexpr PictureSize kChartSize = {640, 400};

inline constexpr const char* kPlantationPicture = "plantations";

/// The name of the chart of a species' heights.
std::string HeightPicture(const std::string& code);

/// A paragraph that shows a picture; `text` stands for it where it can't be seen.
std::string PictureHtml(const std::string& name, const std::string& text, const Page& page);

}  // namespace arbolith::help
