#include "Emitter/CodeText.h"
#include "Emitter/PropertyEmitter.h"
#include "Emitter/ReflectedHeader.h"

namespace HeaderTool
{
using namespace HeaderParser;

namespace
{
class FSourceEmitter
{
public:
	FSourceEmitter(const FReflectedHeader& InHeader, const FTypeIndex& InTypes)
		: Header(InHeader)
		, Types(InTypes)
	{
	}

	std::string Run()
	{
		for (const FDelegateDeclaration& Delegate : Header.Model.Delegates)
		{
			EmitDelegate(Delegate);
		}
		for (const FEnumDeclaration& Enum : Header.Model.Enums)
		{
			EmitEnum(Enum);
		}
		for (const FStructDeclaration& Struct : Header.Model.Structs)
		{
			EmitStruct(Struct);
		}
		for (const FClassDeclaration& Class : Header.Model.Classes)
		{
			EmitClass(Class);
		}
		EmitRegistration();

		std::string Text = "// Made by HeaderTool from " + Header.ModuleRelativePath + ". Changes are lost.\n";
		Text += "#include \"UObject/GeneratedCppIncludes.h\"\n#include \"UObject/Class.h\"\n#include \"UObject/Interface.h\"\n#include "
				"\"UObject/Package.h\"\n";
		Text += "#include \"" + Header.IncludePath + "\"\n\n#include <cstddef>\n#include <type_traits>\n\n";
		// Members that are deprecated are still reflected.
		Text += "#pragma GCC diagnostic ignored \"-Wdeprecated-declarations\"\n\n";
		for (const std::string& Line : Foreign.Declarations())
		{
			Text += Line + "\n";
		}
		return Text + Code;
	}

private:
	/** Metadata of a type with the place of its declaration. */
	[[nodiscard]] FMetaData WithPlace(FMetaData MetaData, const bool bInclude) const
	{
		if (bInclude)
		{
			MetaData.Set("IncludePath", Header.IncludePath);
		}
		MetaData.Set("ModuleRelativePath", Header.ModuleRelativePath);
		return MetaData;
	}

	/** OuterClass is empty for a delegate outside classes. */
	void EmitFunctionData(const std::string& Symbol, const FFunctionDeclaration& Function, const std::string& OuterClass)
	{
		FPropertyEmitter Properties(Types, Foreign, "");
		for (const FPropertyDeclaration& Parameter : Function.Parameters)
		{
			Properties.Add(Parameter);
		}
		if (Function.ReturnValue)
		{
			Properties.Add(*Function.ReturnValue);
		}
		const FMetaData MetaData = WithPlace(Function.MetaData, false);
		const std::string Outer = OuterClass.empty() ? "nullptr, " + Quote(Header.Package)
													 : "[]() -> UClass* { return " + Foreign.Class(OuterClass) + "; }, nullptr";
		Code += "\nstruct " + Symbol + "_Statics\n{\n";
		Code += EmitMetaData("Function_MetaData", MetaData) + Properties.Finish();
		Code += "\tstatic constexpr UECodeGen_Private::FFunctionParams Params = {" + Outer + ", " + Quote(Function.Name) +
			", (EFunctionFlags)" + Hex(Function.Flags) + "u, " + Properties.Reference() + ", " +
			MetaDataReference("Function_MetaData", MetaData) + "};\n";
		Code += "\tstatic inline UFunction* Singleton = nullptr;\n};\n";
		Code += "UFunction* " + Symbol + "() { return UECodeGen_Private::ConstructFunction(" + Symbol + "_Statics::Singleton, " + Symbol +
			"_Statics::Params); }\n";
	}

	void EmitDelegate(const FDelegateDeclaration& Delegate)
	{
		EmitFunctionData("Z_Construct_UDelegateFunction_" + Delegate.Name, Delegate.Signature, Delegate.OuterClass);
	}

	void EmitEnum(const FEnumDeclaration& Enum)
	{
		const std::string CppType = Enum.InnerName.empty() ? Enum.Name : Enum.Name + "::" + Enum.InnerName;
		const std::string Symbol = "Z_Construct_UEnum_" + Enum.Name;
		const FMetaData MetaData = WithPlace(Enum.MetaData, false);
		std::string Rows;
		Code += "\nstruct " + Symbol + "_Statics\n{\n";
		for (const FEnumeratorDeclaration& Enumerator : Enum.Enumerators)
		{
			const std::string MetaName = "Enumerator_" + Enumerator.Name + "_MetaData";
			const std::string Qualified = Enum.QualifiedName(Enumerator);
			Code += EmitMetaData(MetaName, Enumerator.MetaData);
			Rows += "\t\t{" + Quote(Qualified) + ", static_cast<int64>(::" + Qualified + "), " +
				MetaDataReference(MetaName, Enumerator.MetaData) + "},\n";
		}
		Code += EmitMetaData("Enum_MetaData", MetaData);
		if (!Rows.empty())
		{
			Code += "\tstatic constexpr UECodeGen_Private::FEnumeratorParam Enumerators[] = {\n" + Rows + "\t};\n";
		}
		const std::string Enumerators = Rows.empty() ? "nullptr, 0" : "Enumerators, " + std::to_string(Enum.Enumerators.size());
		Code += "\tstatic constexpr UECodeGen_Private::FEnumParams Params = {" + Quote(Header.Package) + ", " + Quote(Enum.Name) + ", " +
			Quote(CppType) + ", " + std::to_string(static_cast<int32_t>(Enum.Form)) + ", " + (Enum.bFlags ? "true" : "false") +
			", sizeof(::" + CppType + "), " + Enumerators + ", " + MetaDataReference("Enum_MetaData", MetaData) + "};\n";
		Code += "\tstatic inline UEnum* Singleton = nullptr;\n};\n";
		Code += "UEnum* " + Symbol + "() { return UECodeGen_Private::ConstructEnum(" + Symbol + "_Statics::Singleton, " + Symbol +
			"_Statics::Params); }\n";
		Code += "template <>\nUEnum* StaticEnum<::" + CppType + ">()\n{\n\treturn " + Symbol + "();\n}\n";
		Enums.push_back(Symbol);
	}

	/** Members of a struct that has no body macro may be private, so offsets are those of a copy of its layout. */
	[[nodiscard]] static std::string EmitLayoutCopy(const FStructDeclaration& Struct)
	{
		std::string Text = "\tstruct FLayout" + (Struct.Super.empty() ? "" : " : public ::" + Struct.Super) + "\n\t{\n";
		for (const FPropertyDeclaration& Property : Struct.Properties)
		{
			const std::string Dim = Property.ArrayDim.empty() ? "" : "[" + Property.ArrayDim + "]";
			Text += "\t\t" + Property.Type.CppText + " " + Property.CppName + Dim + (Property.BitWidth > 0 ? " : 1" : "") + ";\n";
		}
		return Text + "\t};\n\tstatic_assert(sizeof(FLayout) == sizeof(::" + Struct.Name + "), \"The declaration of " + Struct.Name +
			" does not have the struct's members\");\n";
	}

	void EmitStruct(const FStructDeclaration& Struct)
	{
		const std::string Symbol = "Z_Construct_UScriptStruct_" + Struct.Name;
		const FMetaData MetaData = WithPlace(Struct.MetaData, false);
		FPropertyEmitter Properties(Types, Foreign, Struct.bNoExport ? "FLayout" : "::" + Struct.Name);
		for (const FPropertyDeclaration& Property : Struct.Properties)
		{
			Properties.Add(Property);
		}
		const bool bLayoutCopy = Struct.bNoExport && !Struct.Properties.empty();
		const std::string Super =
			!Types.FindStruct(Struct.Super) ? "nullptr" : "[]() -> UScriptStruct* { return " + Foreign.Struct(Struct.Super) + "; }";
		Code += "\nstruct " + Symbol + "_Statics\n{\n" + (bLayoutCopy ? EmitLayoutCopy(Struct) : "");
		Code += EmitMetaData("Struct_MetaData", MetaData) + Properties.Finish();
		Code += "\tstatic void* NewStructOps() { return static_cast<UScriptStruct::ICppStructOps*>(new UScriptStruct::TCppStructOps<::" +
			Struct.Name + ">()); }\n";
		Code += "\tstatic constexpr UECodeGen_Private::FStructParams Params = {" + Quote(Header.Package) + ", " +
			Quote(WithoutPrefix(Struct.Name)) + ", " + Super + ", &NewStructOps, sizeof(::" + Struct.Name + "), alignof(::" + Struct.Name +
			"), (EStructFlags)" + Hex(Struct.Flags) + "u, " + Properties.Reference() + ", " +
			MetaDataReference("Struct_MetaData", MetaData) + "};\n";
		Code += "\tstatic inline UScriptStruct* Singleton = nullptr;\n};\n";
		Code += "UScriptStruct* " + Symbol + "() { return UECodeGen_Private::ConstructScriptStruct(" + Symbol + "_Statics::Singleton, " +
			Symbol + "_Statics::Params); }\n";
		if (!Struct.bNoExport)
		{
			Code += "UScriptStruct* " + Struct.Name + "::StaticStruct() { return " + Symbol + "(); }\n";
		}
		Structs.push_back(Symbol);
	}

	void EmitClass(const FClassDeclaration& Class)
	{
		const std::string Symbol = "Z_Construct_UClass_" + Class.Name;
		for (const FFunctionDeclaration& Function : Class.Functions)
		{
			EmitFunctionData("Z_Construct_UFunction_" + Class.Name + "_" + Function.Name, Function, Class.Name);
			EmitEventBody(Class, Function);
		}
		FPropertyEmitter Properties(Types, Foreign, "::" + Class.Name);
		for (const FPropertyDeclaration& Property : Class.Properties)
		{
			Properties.Add(Property);
		}
		const FMetaData MetaData = WithPlace(Class.MetaData, true);
		Foreign.Class(Class.Name);
		Code += "\nstruct " + Symbol + "_Statics\n{\n";
		Code += EmitMetaData("Class_MetaData", MetaData) + Properties.Finish() + EmitFunctionTable(Class);
		Code += "\tstatic inline UClass* Singleton = nullptr;\n\tstatic const UECodeGen_Private::FClassParams& GetParams();\n};\n";
		EmitClassParams(Class, Symbol, Properties.Reference(), MetaDataReference("Class_MetaData", MetaData));
		EmitClassFunctions(Class, Symbol);
		Classes.push_back(Symbol);
	}

	/** `Within=` names a class with or without its prefix. */
	[[nodiscard]] std::string CppNameOf(const std::string& Name) const
	{
		if (Types.FindClass(Name))
		{
			return Name;
		}
		return (Types.FindClass("A" + Name) ? "A" : "U") + Name;
	}

	[[nodiscard]] static std::string EmitFunctionTable(const FClassDeclaration& Class)
	{
		if (Class.Functions.empty())
		{
			return "";
		}
		std::string Text = "\tstatic constexpr UFunction* (*Functions[])() = {\n";
		for (const FFunctionDeclaration& Function : Class.Functions)
		{
			Text += "\t\t&Z_Construct_UFunction_" + Class.Name + "_" + Function.Name + ",\n";
		}
		return Text + "\t};\n";
	}

	/** Base offsets are no constant expressions, so the data stands in a function, where no other file's start can be before it. */
	void EmitClassParams(const FClassDeclaration& Class, const std::string& Symbol, const std::string& Properties,
		const std::string& MetaData)
	{
		const std::vector<std::string> Interfaces = ReflectedInterfaces(Class, Types);
		const std::string Constructible =
			Class.bNoExport || Class.bDeclaresPureVirtual ? "nullptr" : "&::" + Class.Name + "::__DefaultConstructor";
		const std::string References = Class.bDeclaresAddReferencedObjects ? "&::" + Class.Name + "::AddReferencedObjects" : "nullptr";
		const std::string Within =
			Class.Within.empty() ? "nullptr" : "[]() -> UClass* { return " + Foreign.Class(CppNameOf(Class.Within)) + "; }";
		const std::string Functions = Class.Functions.empty() ? "nullptr, 0" : "Functions, " + std::to_string(Class.Functions.size());
		Code += "const UECodeGen_Private::FClassParams& " + Symbol + "_Statics::GetParams()\n{\n";
		if (!Interfaces.empty())
		{
			Code += "\tstatic const UECodeGen_Private::FImplementedInterfaceParams Interfaces[] = {\n";
			for (const std::string& Interface : Interfaces)
			{
				// Any address that is not null shows how far the base stands from the object.
				Code += "\t\t{[]() -> UClass* { return " + Foreign.Class(InterfaceClassOf(Interface)) +
					"; }, static_cast<int32>(reinterpret_cast<UPTRINT>(static_cast<" + Interface + "*>(reinterpret_cast<::" + Class.Name +
					"*>(0x1000))) - 0x1000)},\n";
			}
			Code += "\t};\n";
		}
		const std::string InterfaceTable = Interfaces.empty() ? "nullptr, 0" : "Interfaces, " + std::to_string(Interfaces.size());
		const std::string Super = Class.Super.empty() ? "nullptr" : "[]() -> UClass* { return " + Class.Super + "::StaticClass(); }";
		Code += "\tstatic const UECodeGen_Private::FClassParams Params = {" + Quote(Header.Package) + ", " +
			Quote(WithoutPrefix(Class.Name)) + ", " + Super + ", " + Within + ", " +
			(Class.ConfigName.empty() ? "nullptr" : Quote(Class.ConfigName)) + ",\n\t\tsizeof(::" + Class.Name +
			"), alignof(::" + Class.Name + "), (EClassFlags)" + Hex(Class.Flags) + "u, " + Constructible + ", " + References + ",\n\t\t" +
			Properties + ", " + Functions + ", " + InterfaceTable + ", " + MetaData + "};\n";
		Code += "\treturn Params;\n}\n";
	}

	void EmitClassFunctions(const FClassDeclaration& Class, const std::string& Symbol)
	{
		const std::string Arguments = "(" + Symbol + "_Statics::Singleton, " + Symbol + "_Statics::GetParams())";
		if (Class.bNoExport)
		{
			Code += "UClass* " + Symbol + "_NoRegister() { return UECodeGen_Private::GetClass" + Arguments + "; }\n";
		}
		else
		{
			Code += "UClass* " + Class.Name + "::GetPrivateStaticClass() { return UECodeGen_Private::GetClass" + Arguments + "; }\n";
			Code += "UClass* " + Symbol + "_NoRegister() { return " + Class.Name + "::StaticClass(); }\n";
			if (!Class.Constructors.bDestructor)
			{
				Code += Class.Name + "::~" + Class.Name + "() {}\n";
			}
		}
		Code += "UClass* " + Symbol + "()\n{\n";
		if (!Class.Super.empty() && !IsIntrinsicClass(Class.Super))
		{
			// A class is complete only after its super is.
			Code += "\t" + Foreign.CompleteClass(Class.Super) + ";\n";
		}
		Code += "\treturn UECodeGen_Private::ConstructClass" + Arguments + ";\n}\n";
	}

	/** What an event's public function does where nothing overrides it: its native implementation, or nothing. */
	void EmitEventBody(const FClassDeclaration& Class, const FFunctionDeclaration& Function)
	{
		if (!IsEvent(Function))
		{
			return;
		}
		const std::string Return = ReturnTypeOf(Function);
		const std::string Const = Function.bConst ? " const" : "";
		const std::string Owner = Class.InterfaceBody ? Class.InterfaceBody->Name : Class.Name;
		const std::string Nothing = Function.ReturnValue ? "return " + Return + "();" : "";
		const std::string Call = Function.Name + "_Implementation(" + ArgumentList(Function) + ");";
		Code += "\n" + Return + " " + Owner + "::" + Function.Name + "(" + ParameterList(Function) + ")" + Const + "\n{\n\t" +
			(HasImplementation(Function) ? "return " + Call : Nothing) + "\n}\n";
		if (Class.InterfaceBody)
		{
			EmitExecute(Class, Function, Return, Nothing, Call);
		}
	}

	void EmitExecute(const FClassDeclaration& Class, const FFunctionDeclaration& Function, const std::string& Return,
		const std::string& Nothing, const std::string& Call)
	{
		const std::string& Owner = Class.InterfaceBody->Name;
		const std::string Const = Function.bConst ? "const " : "";
		const std::string Parameters = ParameterList(Function);
		Code += Return + " " + Owner + "::Execute_" + Function.Name + "(" + Const + "UObject* O" +
			(Parameters.empty() ? "" : ", " + Parameters) + ")\n{\n";
		Code += "\tcheck(O != nullptr);\n\tcheck(O->GetClass()->ImplementsInterface(" + Class.Name + "::StaticClass()));\n";
		if (HasImplementation(Function))
		{
			Code += "\tif (" + Const + Owner + "* const I = static_cast<" + Const + Owner + "*>(O->GetNativeInterfaceAddress(" +
				Class.Name + "::StaticClass())))\n\t{\n\t\treturn I->" + Call + "\n\t}\n";
		}
		Code += (Nothing.empty() ? "" : "\t" + Nothing + "\n") + "}\n";
	}

	[[nodiscard]] static std::string EmitTable(const std::string& Type, const std::string& Name, const std::vector<std::string>& Symbols)
	{
		if (Symbols.empty())
		{
			return "";
		}
		std::string Text = "\tstatic constexpr " + Type + "* (*" + Name + "[])() = {\n";
		for (const std::string& Symbol : Symbols)
		{
			Text += "\t\t&" + Symbol + ",\n";
		}
		return Text + "\t};\n";
	}

	[[nodiscard]] static std::string TableReference(const std::string& Name, const std::vector<std::string>& Symbols)
	{
		return Symbols.empty() ? "nullptr, 0" : Name + ", " + std::to_string(Symbols.size());
	}

	void EmitRegistration()
	{
		const std::string Symbol = "Z_CompiledIn_" + Header.FileId;
		Code += "\nstruct " + Symbol + "\n{\n" + EmitTable("UClass", "Classes", Classes) + EmitTable("UScriptStruct", "Structs", Structs) +
			EmitTable("UEnum", "Enums", Enums);
		Code += "\tstatic const UECodeGen_Private::FRegisterCompiledIn Registration;\n};\n";
		Code += "const UECodeGen_Private::FRegisterCompiledIn " + Symbol + "::Registration(" + TableReference("Classes", Classes) + ", " +
			TableReference("Structs", Structs) + ", " + TableReference("Enums", Enums) + ");\n";
	}

	const FReflectedHeader& Header;
	const FTypeIndex& Types;
	FForeignFunctions Foreign;
	std::string Code;
	std::vector<std::string> Classes;
	std::vector<std::string> Structs;
	std::vector<std::string> Enums;
};
}

std::string EmitGeneratedSource(const FReflectedHeader& Header, const FTypeIndex& Types) { return FSourceEmitter(Header, Types).Run(); }
}
