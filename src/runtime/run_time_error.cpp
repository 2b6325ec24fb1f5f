#include "runtime/run_time_error.h"

#include <utility>

RunTimeError::RunTimeError(int number) : number_(number), description_(standardErrorText(number)) {}

RunTimeError::RunTimeError(int number, std::string description)
    : number_(number), description_(std::move(description))
{}

std::string standardErrorText(int number)
{
    using namespace runTimeErrors;
    switch (number) {
    case invalidCall:
        return "Invalid procedure call or argument";
    case overflow:
        return "Overflow";
    case outOfMemory:
        return "Out of memory";
    case subscriptOutOfRange:
        return "Subscript out of range";
    case divisionByZero:
        return "Division by zero";
    case typeMismatch:
        return "Type mismatch";
    case outOfStringSpace:
        return "Out of string space";
    case badFileNumber:
        return "Bad file name or number";
    case fileNotFound:
        return "File not found";
    case deviceIo:
        return "Device I/O error";
    case fileAlreadyExists:
        return "File already exists";
    case diskFull:
        return "Disk full";
    case inputPastEnd:
        return "Input past end of file";
    case permissionDenied:
        return "Permission denied";
    case pathFileAccess:
        return "Path/File access error";
    case pathNotFound:
        return "Path not found";
    case objectVariableNotSet:
        return "Object variable or With block variable not set";
    case invalidNull:
        return "Invalid use of Null";
    case invalidFileFormat:
        return "Invalid file format";
    case invalidPropertyValue:
        return "Invalid property value";
    case objectRequired:
        return "Object required";
    case cannotCreateObject:
        return "ActiveX component can't create object";
    case keyAlreadyExists:
        return "This key is already associated with an element of this collection";
    case keyNotFound:
        return "Element not found";
    case keyNotUnique:
        return "Key is not unique in collection";
    case 3021:
        return "Either BOF or EOF is True, or the current record has been deleted. Requested "
               "operation requires a current record.";
    case 3704:
        return "Operation is not allowed when the object is closed.";
    case 3705:
        return "Operation is not allowed when the object is open.";
    case connectionClosed:
        return "The connection cannot be used to perform this operation. It is either closed or "
               "invalid in this context.";
    case itemNotInCollection:
        return "Item cannot be found in the collection corresponding to the requested name or "
               "ordinal.";
    default:
        return "Application-defined or object-defined error";
    }
}
