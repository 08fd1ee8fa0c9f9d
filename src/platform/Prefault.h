#pragma once

#include <cstddef>

namespace Public_Function {

/// Has the system provide all memory of a large block at once that is about to be written from end to end.
/// Else it does so page by page, each with an interruption, which on a virtual machine takes longer than the
/// writing. Does nothing where the system cannot.
void Prefault(void *block, std::size_t bytes);

} // namespace Public_Function
