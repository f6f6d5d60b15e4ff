#pragma once

#include "HeaderParser/Model.h"

namespace HeaderParser
{
/**
 * The engine's import text of a parameter's C++ default: `FVector(0, 0, 1)` is "0.000000,0.000000,1.000000", `nullptr` is
 * "None", `EFoo::Bar` is "Bar". Null when a value of the type cannot be written so.
 */
[[nodiscard]] std::optional<std::string> ConvertDefault(const FTypeReference& Type, std::string_view CppText);
}
