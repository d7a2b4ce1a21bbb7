#include <algorithm>
#include <new>

#include <boost/filesystem/operations.hpp>
#include <boost/filesystem/path.hpp>

#include "core/model_impl.hpp"
#include "varo/model/model_utils.hpp"
#include "varo/model/text_file.hpp"

namespace Sim {

namespace {

using Varo::Model::DescriptionError;
using Varo::Model::readTextFile;
using Varo::Model::TextFile;
using Varo::Model::ModelUtils::Reading;

/// Texts are too long for names, too, but hold tags.
bool isMeantAsPath(std::string const& text)
{
    return text.find('<') == std::string::npos;
}

/// What no file can be called, by the limits of the system, which would look for it all the same.
bool isNoPath(std::string const& text)
{
    constexpr std::size_t longestPath = 4096;  // bytes
    constexpr std::size_t longestName = 255;
    if (text.size() >= longestPath || text.find('\0') != std::string::npos) {
        return true;  // of one with a zero, the system would look at the part before it only
    }
    // Of what is meant as a path, the system is to say what is wrong with it.
    return !isMeantAsPath(text) && std::min(text.find('/'), text.size()) > longestName;
}

/// Whether there is a file of that name. The reason why that cannot be told goes into `error`; it is left alone when
/// there is none for certain.
bool isExistingPath(std::string const& text, boost::system::error_code& error)
{
    if (isNoPath(text)) {
        return false;
    }
    boost::system::error_code reason;
    boost::filesystem::file_type const type = boost::filesystem::status(text, reason).type();
    if (reason == boost::system::errc::not_enough_memory) {
        throw std::bad_alloc();
    }
    if (type == boost::filesystem::status_error) {
        error = reason;
    }
    return type != boost::filesystem::status_error && type != boost::filesystem::file_not_found;
}

constexpr char failure[] = "Could not load model. ";

std::string refusal(std::string const& pathOrXml, bool isFile, bool isOpened)
{
    std::string const quoted = "'" + pathOrXml + "'";
    if (isFile && !isOpened) {
        return failure + quoted + " could not be opened.\n";
    }
    std::string const note = quoted + " does not exist.Trying to load the given string as XML.\n";
    return failure + (isFile ? std::string() : note) + quoted + " is not a valid DCM XML.\n";
}

}  // namespace

void ModelImpl::loadModel(std::string const& pathOrXml)
{
    boost::system::error_code inTheWay;
    bool const isFile = isExistingPath(pathOrXml, inTheWay);
    bool const isRead = isFile || (inTheWay && isMeantAsPath(pathOrXml));
    TextFile file = isRead ? readTextFile(pathOrXml) : TextFile{pathOrXml, {}, true};
    bool const isOpened = file.isOpened;
    Reading reading = Varo::Model::ModelUtils::read(std::move(file), forModel);
    if (reading.robot == nullptr) {
        throw DescriptionError(refusal(pathOrXml, isFile, isOpened), std::move(reading.findings));
    }
    makeMotionModel(std::move(reading.robot));
}

void ModelImpl::loadModel(Reading&& reading)
{
    if (reading.robot == nullptr) {
        std::string const errors = Varo::Model::summaryOf(reading.findings);
        std::string const what = failure + (errors.empty() ? "The reading holds no robot." : errors);
        throw DescriptionError(what, std::move(reading.findings));
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
