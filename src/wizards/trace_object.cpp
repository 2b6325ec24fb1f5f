#include "wizards/trace_object.h"

#include "runtime/required_object.h"
#include "runtime/run_time_error.h"

void classTraceObject::NameList::clear()
{
    names.clear(1);
    count = 0;
}

void classTraceObject::NameList::add(const std::string& name)
{
    ++count;
    names.resize(count);
    names.set(count, name);
}

void classTraceObject::clearWindowsLogs()
{
    windowsLogs_.clear();
}

void classTraceObject::clearOrvanLogs()
{
    orvanLogs_.clear();
}

void classTraceObject::addOrvanLog(const std::string& name)
{
    orvanLogs_.add(name);
}

void classTraceObject::addWindowsLog(const std::string& name)
{
    windowsLogs_.add(name);
}

PageSheet& classTraceObject::m_PropertySheet() const
{
    return required(propertySheet_, runTimeErrors::objectRequired);
}
