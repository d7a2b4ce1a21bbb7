#ifndef VARO_MODEL_NATIVE_ELEMENTS_HPP
#define VARO_MODEL_NATIVE_ELEMENTS_HPP

#include "native/schema.hpp"

/// The elements of the native dialect; each family of them stands in a source of its own.
namespace Varo::Model::Native {

/// The root element; reads into a Records.
extern Element const robotDescriptionElement;

// What stands in it, and the functions that read it into the Records that `parent` points to.
extern Element const rootElement;
extern Element const jointElement;
extern Element const chainElement;
extern Element const actuatorElement;
extern Element const wheelElement;
extern Element const sensorElement;
extern Element const postureElement;

void readRoot(ElementReader& reader, Element const& element, pugi::xml_node node, void* parent);
void readJoint(ElementReader& reader, Element const& element, pugi::xml_node node, void* parent);
void readChain(ElementReader& reader, Element const& element, pugi::xml_node node, void* parent);
void readActuator(ElementReader& reader, Element const& element, pugi::xml_node node, void* parent);
void readWheel(ElementReader& reader, Element const& element, pugi::xml_node node, void* parent);
void readSensor(ElementReader& reader, Element const& element, pugi::xml_node node, void* parent);
void readPosture(ElementReader& reader, Element const& element, pugi::xml_node node, void* parent);

// And those that write them from there.
void writeRoot(ElementWriter& writer, Element const& element, void const* parent);
void writeJoints(ElementWriter& writer, Element const& element, void const* parent);
void writePostures(ElementWriter& writer, Element const& element, void const* parent);

}  // namespace Varo::Model::Native

#endif
