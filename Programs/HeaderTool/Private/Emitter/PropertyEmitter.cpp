#include "Emitter/PropertyEmitter.h"

#include "Emitter/CodeText.h"
#include "HeaderParser/Flags.h"

namespace HeaderTool
{
using namespace HeaderParser;

namespace
{
/** A function pointer that answers the expression as a UField. */
std::string AsFieldFunction(const std::string& Call) { return "[]() -> UField* { return " + Call + "; }"; }

std::string AsClassFunction(const std::string& Call) { return "[]() -> UClass* { return " + Call + "; }"; }

/** Names of EPropertyGenKind, for kinds that say all about themselves. */
const char* GenKindOf(const ETypeKind Kind)
{
	switch (Kind)
	{
		case ETypeKind::Bool:
			return "Bool";
		case ETypeKind::Byte:
		case ETypeKind::EnumAsByte:
			return "Byte";
		case ETypeKind::Int8:
			return "Int8";
		case ETypeKind::Int16:
			return "Int16";
		case ETypeKind::Int:
			return "Int";
		case ETypeKind::Int64:
			return "Int64";
		case ETypeKind::UInt16:
			return "UInt16";
		case ETypeKind::UInt32:
			return "UInt32";
		case ETypeKind::UInt64:
			return "UInt64";
		case ETypeKind::Float:
			return "Float";
		case ETypeKind::Double:
			return "Double";
		case ETypeKind::Name:
			return "Name";
		case ETypeKind::String:
			return "Str";
		case ETypeKind::Text:
			return "Text";
		case ETypeKind::Object:
			return "Object";
		case ETypeKind::WeakObject:
			return "WeakObject";
		case ETypeKind::LazyObject:
			return "LazyObject";
		case ETypeKind::SoftObject:
			return "SoftObject";
		case ETypeKind::Class:
			return "Class";
		case ETypeKind::SoftClass:
			return "SoftClass";
		case ETypeKind::Interface:
			return "Interface";
		case ETypeKind::Array:
			return "Array";
		case ETypeKind::Set:
			return "Set";
		case ETypeKind::Map:
			return "Map";
		case ETypeKind::Optional:
			return "Optional";
		case ETypeKind::FieldPath:
			return "FieldPath";
		default:
			return "Struct";
	}
}

const char* UnderlyingKind(const FEnumDeclaration* const Enum)
{
	if (!Enum || Enum->UnderlyingSize() == 1)
	{
		return Enum && Enum->UnderlyingType == "int8" ? "Int8" : "Byte";
	}
	const bool bUnsigned = Enum->UnderlyingType[0] == 'u';
	switch (Enum->UnderlyingSize())
	{
		case 2:
			return bUnsigned ? "UInt16" : "Int16";
		case 8:
			return bUnsigned ? "UInt64" : "Int64";
		default:
			return bUnsigned ? "UInt32" : "Int";
	}
}
}

std::string EmitMetaData(const std::string& Name, const FMetaData& MetaData)
{
	if (MetaData.Pairs().empty())
	{
		return "";
	}
	std::string Text = "\tstatic constexpr UECodeGen_Private::FMetaDataPairParam " + Name + "[] = {\n";
	for (const auto& [Key, Value] : MetaData.Pairs())
	{
		Text += "\t\t{" + Quote(Key) + ", " + Quote(Value) + "},\n";
	}
	return Text + "\t};\n";
}

std::string MetaDataReference(const std::string& Name, const FMetaData& MetaData)
{
	const size_t Count = MetaData.Pairs().size();
	return Count == 0 ? "nullptr, 0" : Name + ", " + std::to_string(Count);
}

std::string FForeignFunctions::Class(const std::string& Name)
{
	if (IsIntrinsicClass(Name))
	{
		return Name + "::StaticClass()";
	}
	Lines.insert("class UClass* Z_Construct_UClass_" + Name + "_NoRegister();");
	return "Z_Construct_UClass_" + Name + "_NoRegister()";
}

std::string FForeignFunctions::CompleteClass(const std::string& Name)
{
	Lines.insert("class UClass* Z_Construct_UClass_" + Name + "();");
	return "Z_Construct_UClass_" + Name + "()";
}

std::string FForeignFunctions::Struct(const std::string& Name)
{
	Lines.insert("class UScriptStruct* Z_Construct_UScriptStruct_" + Name + "();");
	return "Z_Construct_UScriptStruct_" + Name + "()";
}

std::string FForeignFunctions::Enum(const std::string& Name)
{
	Lines.insert("class UEnum* Z_Construct_UEnum_" + Name + "();");
	return "Z_Construct_UEnum_" + Name + "()";
}

std::string FForeignFunctions::Delegate(const std::string& Name)
{
	Lines.insert("class UFunction* Z_Construct_UDelegateFunction_" + Name + "();");
	return "Z_Construct_UDelegateFunction_" + Name + "()";
}

std::string FPropertyEmitter::FParams::Initialiser() const
{
	return "{" + Quote(Name) + ", UECodeGen_Private::EPropertyGenKind::" + Kind + ", (EPropertyFlags)" + Hex(Flags) + ", " + ArrayDim +
		", " + Offset + ", " + ElementSize + ", " + TypeFunction + ", " + MetaClassFunction + ", " + SetBit + ", " + Inner + ", " + Value +
		", " + RepNotify + ", " + MetaData + "}";
}

void FPropertyEmitter::Add(const FPropertyDeclaration& Property)
{
	const std::string Prefix = "NewProp_" + Property.CppName;
	FParams Params;
	Params.Name = Property.Name;
	Params.Flags = Property.Flags;
	Params.ElementSize = "sizeof(" + Property.Type.CppText + ")";
	Describe(Property.Type, Prefix, Params);
	Preamble += EmitMetaData(Prefix + "_MetaData", Property.MetaData);
	Params.MetaData = MetaDataReference(Prefix + "_MetaData", Property.MetaData);
	if (!Property.RepNotifyFunction.empty())
	{
		Params.RepNotify = Quote(Property.RepNotifyFunction);
	}
	if (!OwnerCpp.empty())
	{
		DescribeMember(Property, Params);
	}
	Rows.push_back(Params.Initialiser());
}

void FPropertyEmitter::DescribeMember(const FPropertyDeclaration& Property, FParams& Out)
{
	const std::string Member = OwnerCpp + "::" + Property.CppName;
	const bool bBitField = Property.BitWidth > 0;
	if (Property.Type.Kind == ETypeKind::Bool)
	{
		Out.SetBit = "NewProp_" + Property.CppName + "_SetBit";
		const std::string Element = Property.ArrayDim.empty() ? "" : "[0]";
		Preamble += "\tstatic void " + Out.SetBit + "(void* Owner) { static_cast<" + OwnerCpp + "*>(Owner)->" + Property.CppName + Element +
			" = 1; }\n";
	}
	Out.ElementSize = bBitField ? "sizeof(bool)" : "sizeof(std::remove_extent_t<decltype(" + Member + ")>)";
	Out.Offset = bBitField ? "0" : "offsetof(" + OwnerCpp + ", " + Property.CppName + ")";
	if (!Property.ArrayDim.empty())
	{
		Out.ArrayDim = "std::extent_v<decltype(" + Member + ")>";
	}
}

void FPropertyEmitter::Describe(const FTypeReference& Type, const std::string& Name, FParams& Out)
{
	Out.Kind = GenKindOf(Type.Kind);
	switch (Type.Kind)
	{
		case ETypeKind::Object:
		case ETypeKind::WeakObject:
		case ETypeKind::LazyObject:
		case ETypeKind::SoftObject:
			Out.TypeFunction = AsFieldFunction(Foreign.Class(Type.Name));
			break;
		case ETypeKind::Class:
		case ETypeKind::SoftClass:
			Out.TypeFunction = AsFieldFunction("UClass::StaticClass()");
			Out.MetaClassFunction = AsClassFunction(Foreign.Class(Type.Name));
			break;
		case ETypeKind::Interface:
			Out.TypeFunction = AsFieldFunction(Foreign.Class(InterfaceClassOf(Type.Name)));
			break;
		case ETypeKind::EnumAsByte:
			Out.TypeFunction = AsFieldFunction(Foreign.Enum(Type.Name));
			break;
		case ETypeKind::Array:
		case ETypeKind::Set:
		case ETypeKind::Optional:
			Out.Inner = AddInner(Type.Arguments[0], Name, "_Inner");
			break;
		case ETypeKind::Map:
			Out.Inner = AddInner(Type.Arguments[0], Name, "_Key");
			Out.Value = AddInner(Type.Arguments[1], Name, "_Value");
			break;
		case ETypeKind::Named:
			DescribeNamed(Type, Name, Out);
			break;
		default:
			break;
	}
}

void FPropertyEmitter::DescribeNamed(const FTypeReference& Type, const std::string& Name, FParams& Out)
{
	if (const FDelegateDeclaration* const Delegate = Types.FindDelegate(Type.Name))
	{
		Out.Kind = Delegate->bMulticast ? "MulticastInlineDelegate" : "Delegate";
		Out.TypeFunction = AsFieldFunction(Foreign.Delegate(Type.Name));
		return;
	}
	const FEnumDeclaration* const Enum = Types.FindEnum(Type.Name);
	const bool bEnumName = Type.Name.size() > 1 && Type.Name[0] == 'E' && Type.Name[1] >= 'A' && Type.Name[1] <= 'Z';
	if (!Enum && (!bEnumName || Types.FindStruct(Type.Name)))
	{
		Out.TypeFunction = AsFieldFunction(Foreign.Struct(Type.Name));
		return;
	}
	Out.TypeFunction = AsFieldFunction(Foreign.Enum(Type.Name));
	if (Enum && Enum->Form != EEnumForm::EnumClass)
	{
		Out.Kind = "Byte";
		return;
	}
	Out.Kind = "Enum";
	Out.Inner = AddUnderlying(Name, Enum);
}

std::string FPropertyEmitter::AddUnderlying(const std::string& Name, const FEnumDeclaration* const Enum)
{
	FParams Params;
	Params.Name = "UnderlyingType";
	Params.Kind = UnderlyingKind(Enum);
	Params.ElementSize = std::to_string(Enum ? Enum->UnderlyingSize() : 1);
	Preamble += "\tstatic constexpr UECodeGen_Private::FPropertyParams " + Name + "_Underlying = " + Params.Initialiser() + ";\n";
	return "&" + Name + "_Underlying";
}

std::string FPropertyEmitter::AddInner(const FTypeReference& Type, const std::string& Name, const char* const Suffix)
{
	const std::string InnerName = Name + Suffix;
	FParams Params;
	Params.Name = std::string_view(Suffix) == "_Inner" ? Name.substr(std::string_view("NewProp_").size())
													   : InnerName.substr(std::string_view("NewProp_").size());
	Params.Flags = Type.bWrapper ? PropertyFlags::UObjectWrapper : 0;
	Params.ElementSize = "sizeof(" + Type.CppText + ")";
	Describe(Type, InnerName, Params);
	Preamble += "\tstatic constexpr UECodeGen_Private::FPropertyParams " + InnerName + " = " + Params.Initialiser() + ";\n";
	return "&" + InnerName;
}

std::string FPropertyEmitter::Finish() const
{
	if (Rows.empty())
	{
		return "";
	}
	std::string Text = Preamble + "\tstatic constexpr UECodeGen_Private::FPropertyParams Properties[] = {\n";
	for (const std::string& Row : Rows)
	{
		Text += "\t\t" + Row + ",\n";
	}
	return Text + "\t};\n";
}

std::string FPropertyEmitter::Reference() const { return Rows.empty() ? "nullptr, 0" : "Properties, " + std::to_string(Rows.size()); }
}
