#include "platform/xml.h"

#include "runtime/required_object.h"

std::string requiredAttribute(const XmlElementPtr& element, const std::string& name)
{
    return required(required(element).attribute(name));
}
