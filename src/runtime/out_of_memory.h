#pragma once

/// Ends the program at once when it asks for memory and there is none: the sentence
/// "NAME: out of memory" on standard error, status 1. Nothing is put back and nothing is unwound,
/// as both would need memory; what is stored is as whole as after a kill. `name` has to live as
/// long as the program. Until this is called, such a request raises `std::bad_alloc`.
void endWhenOutOfMemory(const char* name);

/// For libraries that tell by an answer of their own that there was no memory: ends the program
/// where `endWhenOutOfMemory` was called, else returns.
void noteOutOfMemory();
