#include "Emitter/CodeText.h"

#include "HeaderParser/Flags.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace HeaderTool
{
using namespace HeaderParser;

std::string Quote(const std::string_view Text)
{
	std::string Result = "\"";
	for (const char Character : Text)
	{
		const unsigned char Byte = static_cast<unsigned char>(Character);
		if (Character == '"' || Character == '\\')
		{
			Result += '\\';
			Result += Character;
		}
		else if (Byte >= 0x20 && Byte < 0x7F)
		{
			Result += Character;
		}
		else
		{
			// Three octal digits end by themselves, where a hexadecimal escape would take the next character too.
			std::array<char, 8> Buffer{};
			std::snprintf(Buffer.data(), Buffer.size(), "\\%03o", Byte);
			Result += Character == '\n' ? "\\n" : Buffer.data();
		}
	}
	return Result + "\"";
}

std::string Hex(const uint64_t Value)
{
	std::array<char, 24> Buffer{};
	std::snprintf(Buffer.data(), Buffer.size(), "0x%llx", static_cast<unsigned long long>(Value));
	return Buffer.data();
}

std::string WithoutPrefix(const std::string& Name) { return Name.substr(1); }

std::string InterfaceClassOf(const std::string& Name) { return "U" + Name.substr(1); }

namespace
{
std::string DeclaredType(const FTypeReference& Type) { return (Type.bConst ? "const " : "") + Type.CppText + (Type.bReference ? "&" : ""); }
}

std::string ParameterList(const FFunctionDeclaration& Function)
{
	std::string Text;
	for (const FPropertyDeclaration& Parameter : Function.Parameters)
	{
		Text += (Text.empty() ? "" : ", ") + DeclaredType(Parameter.Type) + " " + Parameter.CppName;
	}
	return Text;
}

std::string ArgumentList(const FFunctionDeclaration& Function)
{
	std::string Text;
	for (const FPropertyDeclaration& Parameter : Function.Parameters)
	{
		Text += (Text.empty() ? "" : ", ") + Parameter.CppName;
	}
	return Text;
}

std::string ReturnTypeOf(const FFunctionDeclaration& Function)
{
	return Function.ReturnValue ? DeclaredType(Function.ReturnValue->Type) : "void";
}

bool IsEvent(const FFunctionDeclaration& Function) { return (Function.Flags & (FunctionFlags::BlueprintEvent | FunctionFlags::Net)) != 0; }

bool HasImplementation(const FFunctionDeclaration& Function)
{
	const bool bNativeEvent = (Function.Flags & FunctionFlags::BlueprintEvent) && (Function.Flags & FunctionFlags::Native);
	return bNativeEvent || (Function.Flags & FunctionFlags::Net);
}

std::vector<std::string> ReflectedInterfaces(const FClassDeclaration& Class, const FTypeIndex& Types)
{
	std::vector<std::string> Result;
	for (const std::string& Base : Class.Interfaces)
	{
		const FClassDeclaration* const Interface = Base[0] == 'I' ? Types.FindClass(InterfaceClassOf(Base)) : nullptr;
		if (Interface && Interface->bInterface)
		{
			Result.push_back(Base);
		}
	}
	return Result;
}

bool IsIntrinsicClass(const std::string_view Name)
{
	static constexpr std::string_view Intrinsic[] = {"UObject", "UField", "UStruct", "UScriptStruct", "UFunction", "UDelegateFunction",
		"USparseDelegateFunction", "UEnum", "UClass", "UPackage", "UInterface"};
	return std::find(std::begin(Intrinsic), std::end(Intrinsic), Name) != std::end(Intrinsic);
}
}
