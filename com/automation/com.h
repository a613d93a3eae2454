#pragma once

// COM and automation from Windows' headers, which have to come in this order.
#include <windows.h>

#include <objbase.h>

#include <oleauto.h>
