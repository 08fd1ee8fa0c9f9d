#include "platform/WriteFault.h"

std::optional<WriteFault> &CurrentWriteFault()
{
    static std::optional<WriteFault> fault;
    return fault;
}
