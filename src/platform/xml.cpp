#include "platform/xml.h"

#include "runtime/run_time_error.h"

XmlElement& required(const XmlElementPtr& element)
{
    if (!element) throw RunTimeError(runTimeErrors::objectVariableNotSet);
    return *element;
}

std::string requiredAttribute(const XmlElementPtr& element, const std::string& name)
{
    auto value = required(element).attribute(name);
    if (!value) throw RunTimeError(runTimeErrors::objectVariableNotSet);
    return *std::move(value);
}
