#pragma once

#include "HeaderParser/TypeIndex.h"

namespace HeaderTool
{
/** A C++ string literal of UTF-8 text. */
[[nodiscard]] std::string Quote(std::string_view Text);
[[nodiscard]] std::string Hex(uint64_t Value);
/** "Foo" of "UFoo". */
[[nodiscard]] std::string WithoutPrefix(const std::string& Name);
/** "UFoo" of "IFoo". */
[[nodiscard]] std::string InterfaceClassOf(const std::string& Name);

/** "const FFoo& Name, UBar* Other". */
[[nodiscard]] std::string ParameterList(const HeaderParser::FFunctionDeclaration& Function);
/** "Name, Other". */
[[nodiscard]] std::string ArgumentList(const HeaderParser::FFunctionDeclaration& Function);
[[nodiscard]] std::string ReturnTypeOf(const HeaderParser::FFunctionDeclaration& Function);

/** Public function whose body is emitted: an event or a remote call. */
[[nodiscard]] bool IsEvent(const HeaderParser::FFunctionDeclaration& Function);
/** An event that has a native `Name_Implementation`. */
[[nodiscard]] bool HasImplementation(const HeaderParser::FFunctionDeclaration& Function);

/** Interfaces among the class's bases that are reflected. */
[[nodiscard]] std::vector<std::string> ReflectedInterfaces(const HeaderParser::FClassDeclaration& Class,
	const HeaderParser::FTypeIndex& Types);

/** The classes that reflection itself is made of describe themselves, so no emitted function makes them. */
[[nodiscard]] bool IsIntrinsicClass(std::string_view Name);
}
