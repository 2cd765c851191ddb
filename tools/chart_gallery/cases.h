#pragma once

#include <memory>
#include <string>
#include <vector>

#include "charting/gt_graph.h"

namespace tallyvane {

/// One chart of the gallery; its name is that of its files.
struct GalleryCase {
    std::string name;
    std::unique_ptr<GTGraph> graph;
};

/// Every type of series, and axes set in many ways, for a surface of that resolution in dots per inch.
std::vector<GalleryCase> galleryCases(int resolution);

} // namespace tallyvane
