#ifndef TOOL_VIEW_VIEW_JSON_HPP
#define TOOL_VIEW_VIEW_JSON_HPP

#include <string>

#include "sim/configuration.hpp"
#include "sim/kinematics.hpp"
#include "sim/model.hpp"
#include "varo/model/finding.hpp"
#include "view/embedding.hpp"

namespace Tool {

/// What a page shows.
struct ViewContents {
    std::string file;  ///< as the page names it
    Sim::Model const& model;
    Sim::Kinematics const& kinematics;
    bool degrees = false;  ///< whether it shows angles so at first
    Sim::Configuration const& start;  ///< as the robot stands at first
    Varo::Model::Findings findings;
    Json meshes;  ///< by their URIs
    Json textures;  ///< likewise
};

/// The data of a page, as docs/viewing.md describes it.
std::string viewJson(ViewContents const& contents);

}  // namespace Tool

#endif
