#pragma once

/// Whether somebody may still read standard output: false once nobody has the other end of its pipe
/// any more. Where the system can't tell, a write does.
bool outputHasAReader();
