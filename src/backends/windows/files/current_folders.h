#pragma once

#include <string>

/// Makes the drive of a text such as "C:" the current one, in the folder that is current on it; the
/// empty text changes nothing. Raises 68 for a drive that is not there.
void changeCurrentDrive(const std::string& drive);

/// Makes a folder the current one of its drive, and that of the process where the drive is the
/// current one. Raises 52, 76, 70.
void changeCurrentFolder(const std::string& path);
