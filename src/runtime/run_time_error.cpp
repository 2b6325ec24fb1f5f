#include "runtime/run_time_error.h"

#include <utility>

namespace {

using namespace runTimeErrors;

struct StandardText {
    int number;
    const char* text;
};

constexpr StandardText standardTexts[] = {
    {invalidCall, "Invalid procedure call or argument"},
    {overflow, "Overflow"},
    {outOfMemory, "Out of memory"},
    {subscriptOutOfRange, "Subscript out of range"},
    {divisionByZero, "Division by zero"},
    {typeMismatch, "Type mismatch"},
    {outOfStringSpace, "Out of string space"},
    {badFileNumber, "Bad file name or number"},
    {fileNotFound, "File not found"},
    {deviceIo, "Device I/O error"},
    {fileAlreadyExists, "File already exists"},
    {diskFull, "Disk full"},
    {inputPastEnd, "Input past end of file"},
    {permissionDenied, "Permission denied"},
    {pathFileAccess, "Path/File access error"},
    {pathNotFound, "Path not found"},
    {objectVariableNotSet, "Object variable or With block variable not set"},
    {invalidNull, "Invalid use of Null"},
    {invalidFileFormat, "Invalid file format"},
    {invalidPropertyValue, "Invalid property value"},
    {objectRequired, "Object required"},
    {cannotCreateObject, "ActiveX component can't create object"},
    {keyAlreadyExists, "This key is already associated with an element of this collection"},
    {keyNotFound, "Element not found"},
    {keyNotUnique, "Key is not unique in collection"},
    {3021, "Either BOF or EOF is True, or the current record has been deleted. Requested operation "
           "requires a current record."},
    {3704, "Operation is not allowed when the object is closed."},
    {3705, "Operation is not allowed when the object is open."},
    {connectionClosed, "The connection cannot be used to perform this operation. It is either "
                       "closed or invalid in this context."},
    {itemNotInCollection,
     "Item cannot be found in the collection corresponding to the requested name or ordinal."},
};

} // namespace

RunTimeError::RunTimeError(int number) : number_(number), description_(standardErrorText(number)) {}

RunTimeError::RunTimeError(int number, std::string description)
    : number_(number), description_(std::move(description))
{}

std::string standardErrorText(int number)
{
    for (const auto& standard : standardTexts)
        if (standard.number == number) return standard.text;
    return "Application-defined or object-defined error";
}
