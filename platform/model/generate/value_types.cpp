#include "value_types.hpp"

#include <algorithm>

#include "table_cells.hpp"

namespace Varo::Model::Native {

namespace {

void addTypeOf(AttributeInfo const& attribute, std::vector<ValueType const*>& types)
{
    auto const same = [&](ValueType const* type) { return type->name == attribute.type->name; };
    if (std::none_of(types.begin(), types.end(), same)) {
        types.push_back(attribute.type);
    }
}

}  // namespace

std::vector<ElementInfo const*> allElements(ElementInfo const& root)
{
    std::vector<ElementInfo const*> elements = {&root};
    for (std::size_t i = 0; i < elements.size(); ++i) {
        for (ChildInfo const& child : elements[i]->children) {
            if (std::find(elements.begin(), elements.end(), child.element) == elements.end()) {
                elements.push_back(child.element);
            }
        }
    }
    return elements;
}

std::vector<ValueType const*> usedTypes(ElementInfo const& root)
{
    std::vector<ValueType const*> types;
    for (ElementInfo const* element : allElements(root)) {
        for (AttributeInfo const& attribute : element->attributes) {
            addTypeOf(attribute, types);
        }
        if (element->text != nullptr) {
            addTypeOf(*element->text, types);
        }
    }
    return types;
}

void writeUsedTypes(std::ostream& out, ElementInfo const& root)
{
    out << "| type | a value is |\n| --- | --- |\n";
    for (ValueType const* type : usedTypes(root)) {
        out << "| " << type->name << " | " << type->meaning;
        for (Word const& word : type->words) {
            out << (&word == type->words.begin() ? ": " : ", ") << code(word.word);
        }
        out << " |\n";
    }
}

}  // namespace Varo::Model::Native
