#include <array>
#include <fstream>

#include <boost/filesystem/operations.hpp>
#include <boost/filesystem/path.hpp>

#include "core/model_impl.hpp"
#include "varo/model/model_utils.hpp"

namespace Sim {

namespace {

bool isExistingPath(std::string const& text)
{
    constexpr std::size_t longestPath = 4096;  // bytes; the system knows no longer ones
    if (text.size() >= longestPath || text.find('\0') != std::string::npos) {
        return false;  // of one with a zero, the system would look at the part before it only
    }
    boost::system::error_code error;
    boost::filesystem::file_type const type = boost::filesystem::status(text, error).type();
    return type != boost::filesystem::status_error && type != boost::filesystem::file_not_found;
}

constexpr char failure[] = "Could not load model. ";

/// The whole file, or a little more of it than the reader accepts: a device file may never end.
std::string contentOfFile(std::string const& path)
{
    std::fstream file(path, std::ios::in);
    if (file.fail()) {
        throw std::invalid_argument(failure + ("'" + path + "' could not be opened.\n"));
    }
    std::string content;
    std::array<char, 65536> block;
    while (content.size() <= Varo::Model::ModelUtils::maxTextSize && file) {
        file.read(block.data(), block.size());
        content.append(block.data(), static_cast<std::size_t>(file.gcount()));
    }
    return content;
}

std::string refusal(std::string const& pathOrXml, bool isFile)
{
    std::string const quoted = "'" + pathOrXml + "'";
    std::string const note = quoted + " does not exist.Trying to load the given string as XML.\n";
    return failure + (isFile ? std::string() : note) + quoted + " is not a valid DCM XML.\n";
}

}  // namespace

void ModelImpl::loadModel(std::string const& pathOrXml)
{
    bool const isFile = isExistingPath(pathOrXml);
    std::unique_ptr<Varo::Model::Robot> robot;
    try {
        robot = Varo::Model::ModelUtils::robotFromXml(isFile ? contentOfFile(pathOrXml) : std::string(pathOrXml));
    } catch (Varo::Model::DescriptionError const& error) {
        throw Varo::Model::DescriptionError(refusal(pathOrXml, isFile), error.findings());
    }
    makeMotionModel(std::move(robot));
}

void ModelImpl::loadModel(Varo::Model::ModelUtils::Reading&& reading)
{
    if (reading.robot == nullptr) {
        std::string const what = failure + Varo::Model::summaryOf(reading.findings);
        throw Varo::Model::DescriptionError(what, std::move(reading.findings));
    }
    makeMotionModel(std::move(reading.robot));
}

void ModelImpl::makeMotionModel(std::unique_ptr<Varo::Model::Robot> robot)
{
    _motionModel = boost::make_shared<MotionModel>(std::move(robot));
    _report = std::make_unique<BuildReport>(_motionModel->robot(), _motionModel->records());
}

std::string const& ModelImpl::configFile() const
{
    static std::string const none;
    Varo::Model::SourceText const* const source = robot().source();
    return source == nullptr ? none : source->text();
}

}  // namespace Sim
