#include "Emitter/CodeText.h"
#include "Emitter/ReflectedHeader.h"

#include <set>

namespace HeaderTool
{
using namespace HeaderParser;

namespace
{
/** Lines of one GENERATED_BODY macro. */
class FBodyMacro
{
public:
	FBodyMacro(const FReflectedHeader& Header, const int32_t Line, const bool bLegacy)
		: Text("#define " + Header.FileId + "_" + std::to_string(Line) + (bLegacy ? "_GENERATED_BODY_LEGACY" : "_GENERATED_BODY"))
	{
	}

	void Add(const std::string& Line) { Text += " \\\n" + Line; }
	[[nodiscard]] std::string Finish() const { return Text + "\n"; }

private:
	std::string Text;
};

/** How a class with no constructor of its own is made: by its super's way. */
bool IsMadeByDefaultConstructor(const FClassDeclaration& Class, const FTypeIndex& Types)
{
	std::set<std::string> Seen;
	const FClassDeclaration* Current = &Class;
	while (Current && Seen.insert(Current->Name).second)
	{
		if (Current->Constructors.bObjectInitializer || Current->bLegacyBody)
		{
			return false;
		}
		if (Current->Constructors.bDefault)
		{
			return true;
		}
		Current = Types.FindClass(Current->Super);
	}
	return false;
}

bool IsConstructible(const FClassDeclaration& Class)
{
	return !Class.bNoExport && !Class.bDeclaresPureVirtual;
}

void AddConstructors(FBodyMacro& Macro, const FClassDeclaration& Class, const FTypeIndex& Types)
{
	const std::string& Name = Class.Name;
	const FConstructorFacts& Facts = Class.Constructors;
	const bool bDeclared = Facts.bDefault || Facts.bObjectInitializer;
	const bool bDefault = IsMadeByDefaultConstructor(Class, Types);
	Macro.Add("public:");
	if (Class.bLegacyBody && !bDeclared)
	{
		Macro.Add("\t" + Name + "(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());");
	}
	else if (!bDeclared && bDefault)
	{
		Macro.Add("\t" + Name + "() {}");
	}
	else if (!bDeclared)
	{
		Macro.Add("\t" + Name + "(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get()) : Super(ObjectInitializer) {}");
	}
	Macro.Add("\t" + Name + "(" + Name + "&&) = delete;");
	Macro.Add("\t" + Name + "(const " + Name + "&) = delete;");
	if (!Facts.bDestructor)
	{
		Macro.Add("\tvirtual ~" + Name + "();");
	}
	if (IsConstructible(Class))
	{
		const std::string Argument = bDefault ? "" : "X";
		Macro.Add("\tstatic void __DefaultConstructor(const FObjectInitializer& X) { new ((EInternal*)X.GetObj()) " + Name + "(" +
			Argument + "); }");
	}
}

void AddEvents(FBodyMacro& Macro, const std::vector<FFunctionDeclaration>& Functions)
{
	for (const FFunctionDeclaration& Function : Functions)
	{
		if (HasImplementation(Function) && !Function.bDeclaresImplementation)
		{
			Macro.Add("\tvirtual " + ReturnTypeOf(Function) + " " + Function.Name + "_Implementation(" + ParameterList(Function) + ")" +
				(Function.bConst ? " const;" : ";"));
		}
	}
}

std::string EmitClassBody(const FReflectedHeader& Header, const FClassDeclaration& Class, const FTypeIndex& Types)
{
	FBodyMacro Macro(Header, Class.BodyLine, Class.bLegacyBody);
	Macro.Add("private:");
	Macro.Add("\tfriend struct Z_Construct_UClass_" + Class.Name + "_Statics;");
	Macro.Add("\tstatic UClass* GetPrivateStaticClass();");
	Macro.Add("public:");
	Macro.Add("\tusing Super = " + Class.Super + ";");
	Macro.Add("\tusing ThisClass = " + Class.Name + ";");
	Macro.Add("\tstatic constexpr EClassFlags StaticClassFlags = EClassFlags(" + Hex(Class.Flags) + "u);");
	Macro.Add("\tstatic UClass* StaticClass() { return GetPrivateStaticClass(); }");
	Macro.Add("\tstatic const TCHAR* StaticPackage() { return TEXT(" + Quote(Header.Package) + "); }");
	Macro.Add("\tstatic const char* StaticPackageUTF8() { return " + Quote(Header.Package) + "; }");
	if (!Class.ConfigName.empty())
	{
		Macro.Add("\tstatic const TCHAR* StaticConfigName() { return TEXT(" + Quote(Class.ConfigName) + "); }");
	}
	Macro.Add("\tinline void* operator new(const size_t InSize, EInternal* InMem) { return (void*)InMem; }");
	if (!ReflectedInterfaces(Class, Types).empty())
	{
		Macro.Add("\tvirtual UObject* _getUObject() const override { return const_cast<" + Class.Name + "*>(this); }");
	}
	if (!Class.bInterface)
	{
		AddEvents(Macro, Class.Functions);
	}
	AddConstructors(Macro, Class, Types);
	Macro.Add(Class.bLegacyBody ? "public:" : "private:");
	return Macro.Finish();
}

/** The interface's own events run here; implementers override them. */
void AddInterfaceEvents(FBodyMacro& Macro, const FClassDeclaration& Interface)
{
	for (const FFunctionDeclaration& Function : Interface.Functions)
	{
		if (!IsEvent(Function))
		{
			continue;
		}
		const std::string Return = ReturnTypeOf(Function);
		const std::string Const = Function.bConst ? " const" : "";
		if (HasImplementation(Function) && !Function.bDeclaresImplementation)
		{
			Macro.Add("\tvirtual " + Return + " " + Function.Name + "_Implementation(" + ParameterList(Function) + ")" + Const +
				" { return " + Return + "(); }");
		}
		const std::string Object = Function.bConst ? "const UObject* O" : "UObject* O";
		const std::string Parameters = ParameterList(Function);
		Macro.Add("\tstatic " + Return + " Execute_" + Function.Name + "(" + Object + (Parameters.empty() ? "" : ", " + Parameters) + ");");
	}
}

std::string EmitInterfaceBody(const FReflectedHeader& Header, const FClassDeclaration& Interface)
{
	const FInterfaceBody& Body = *Interface.InterfaceBody;
	FBodyMacro Macro(Header, Body.BodyLine, Body.bLegacyBody);
	if (!Body.bDestructor)
	{
		Macro.Add("protected:");
		Macro.Add("\tvirtual ~" + Body.Name + "() {}");
	}
	Macro.Add("public:");
	Macro.Add("\ttypedef " + Interface.Name + " UClassType;");
	Macro.Add("\ttypedef " + Body.Name + " ThisClass;");
	if (!Body.bDeclaresGetUObject)
	{
		Macro.Add(std::string("\tvirtual UObject* _getUObject() const ") + (Body.Super.empty() ? "" : "override ") + "{ return nullptr; }");
	}
	AddInterfaceEvents(Macro, Interface);
	Macro.Add(Body.bLegacyBody ? "public:" : "private:");
	return Macro.Finish();
}

std::string EmitStructBody(const FReflectedHeader& Header, const FStructDeclaration& Struct)
{
	FBodyMacro Macro(Header, Struct.BodyLine, false);
	Macro.Add("\tfriend struct Z_Construct_UScriptStruct_" + Struct.Name + "_Statics;");
	Macro.Add("\tstatic UScriptStruct* StaticStruct();");
	if (!Struct.Super.empty())
	{
		Macro.Add("\tusing Super = " + Struct.Super + ";");
	}
	return Macro.Finish();
}

/** A plain enum without a type cannot be named before it is defined, so nothing is declared for it here. */
std::string EmitEnum(const FEnumDeclaration& Enum)
{
	const bool bEnumClass = Enum.Form == EEnumForm::EnumClass;
	if (!bEnumClass && Enum.UnderlyingType.empty())
	{
		return "";
	}
	const std::string Type = Enum.UnderlyingType.empty() ? "" : " : " + Enum.UnderlyingType;
	std::string CppType = Enum.Name;
	std::string Text = (bEnumClass ? "enum class " : "enum ") + Enum.Name + Type + ";\n";
	if (Enum.Form == EEnumForm::Namespaced)
	{
		CppType = Enum.Name + "::" + Enum.InnerName;
		Text = "namespace " + Enum.Name + " { enum " + Enum.InnerName + Type + "; }\n";
	}
	return Text + "template <> UEnum* StaticEnum<" + CppType + ">();\n";
}
}

std::string EmitGeneratedHeader(const FReflectedHeader& Header, const FTypeIndex& Types)
{
	const FHeader& Model = Header.Model;
	std::string Text = "// Made by HeaderTool from " + Header.ModuleRelativePath + ". Changes are lost.\n#pragma once\n\n";
	Text += "#include \"UObject/ObjectMacros.h\"\n#include \"UObject/ReflectedTypeAccessors.h\"\n";
	if (!Model.Classes.empty())
	{
		Text += "#include \"UObject/ObjectInitializer.h\"\n";
	}
	Text += "\nclass UClass;\nclass UEnum;\nclass UScriptStruct;\n\n";
	Text += "#undef CURRENT_FILE_ID\n#define CURRENT_FILE_ID " + Header.FileId + "\n";
	for (const FStructDeclaration& Struct : Model.Structs)
	{
		if (!Struct.bNoExport)
		{
			Text += "\n" + EmitStructBody(Header, Struct);
		}
	}
	for (const FClassDeclaration& Class : Model.Classes)
	{
		if (!Class.bNoExport)
		{
			Text += "\n" + EmitClassBody(Header, Class, Types);
		}
		if (Class.InterfaceBody)
		{
			Text += "\n" + EmitInterfaceBody(Header, Class);
		}
	}
	Text += "\n";
	for (const FEnumDeclaration& Enum : Model.Enums)
	{
		Text += EmitEnum(Enum);
	}
	return Text;
}

std::vector<FDiagnostic> Validate(const FReflectedHeader& Header)
{
	std::vector<FDiagnostic> Errors;
	const auto RequireBody = [&Errors](const std::string& Name, const FPosition& Position, const int32_t BodyLine)
	{
		if (BodyLine == 0)
		{
			Errors.push_back({Position, "expected GENERATED_BODY() in '" + Name + "', found none"});
		}
	};
	for (const FClassDeclaration& Class : Header.Model.Classes)
	{
		if (Class.Super.empty() && !Class.bNoExport)
		{
			Errors.push_back({Class.Position, "expected a super class of '" + Class.Name + "', found none"});
		}
		if (!Class.bNoExport)
		{
			RequireBody(Class.Name, Class.Position, Class.BodyLine);
		}
		if (Class.InterfaceBody)
		{
			RequireBody(Class.InterfaceBody->Name, Class.Position, Class.InterfaceBody->BodyLine);
		}
	}
	for (const FStructDeclaration& Struct : Header.Model.Structs)
	{
		if (!Struct.bNoExport)
		{
			RequireBody(Struct.Name, Struct.Position, Struct.BodyLine);
		}
	}
	return Errors;
}
}
