#include "core/shell/Public_Define.h"

Public_Define &Shared()
{
    static Public_Define values;
    return values;
}
