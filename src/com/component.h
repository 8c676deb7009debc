// What is fixed of the component: its class, and the names under which it is registered.
#pragma once

#include "com/com.h"

namespace tamrikon {

/// {6E4F1B82-97D5-4C3A-B0E8-2C19A7F350D4}, the class `Connect`.
constexpr CLSID CLSID_Connect = {
    0x6E4F1B82, 0x97D5, 0x4C3A, {0xB0, 0xE8, 0x2C, 0x19, 0xA7, 0xF3, 0x50, 0xD4}};

constexpr auto kConnectProgId = "Tamrikon.Connect";

}  // namespace tamrikon
