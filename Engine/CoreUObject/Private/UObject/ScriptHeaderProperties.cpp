#include "ScriptHeaderTypes.h"

#include "DeclaredDefaults.h"
#include "InitialiserReader.h"
#include "ScriptHeaderText.h"
#include "UObject/EnumProperty.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

#include <algorithm>

using namespace HeaderParser;
using namespace ScriptHeaderText;
using UECodeGen_Private::EPropertyGenKind;

namespace
{
/** Kinds that say all about themselves, in the order of ETypeKind; the others are answered by Describe. */
constexpr EPropertyGenKind GenKinds[] = {
	EPropertyGenKind::Struct,
	EPropertyGenKind::Bool,
	EPropertyGenKind::Byte,
	EPropertyGenKind::Int8,
	EPropertyGenKind::Int16,
	EPropertyGenKind::Int,
	EPropertyGenKind::Int64,
	EPropertyGenKind::UInt16,
	EPropertyGenKind::UInt32,
	EPropertyGenKind::UInt64,
	EPropertyGenKind::Float,
	EPropertyGenKind::Double,
	EPropertyGenKind::Name,
	EPropertyGenKind::Str,
	EPropertyGenKind::Text,
	EPropertyGenKind::Object,
	EPropertyGenKind::WeakObject,
	EPropertyGenKind::LazyObject,
	EPropertyGenKind::SoftObject,
	EPropertyGenKind::Class,
	EPropertyGenKind::SoftClass,
	EPropertyGenKind::Interface,
	EPropertyGenKind::Byte,
	EPropertyGenKind::Struct,
	EPropertyGenKind::Array,
	EPropertyGenKind::Set,
	EPropertyGenKind::Map,
	EPropertyGenKind::Optional,
	EPropertyGenKind::FieldPath,
};
static_assert(UE_ARRAY_COUNT(GenKinds) == static_cast<size_t>(ETypeKind::FieldPath) + 1);

EPropertyGenKind UnderlyingKind(const FEnumDeclaration& Enum)
{
	const bool bUnsigned = Enum.UnderlyingType.empty() || Enum.UnderlyingType[0] == 'u';
	switch (Enum.UnderlyingSize())
	{
		case 2:
			return bUnsigned ? EPropertyGenKind::UInt16 : EPropertyGenKind::Int16;
		case 4:
			return bUnsigned ? EPropertyGenKind::UInt32 : EPropertyGenKind::Int;
		case 8:
			return bUnsigned ? EPropertyGenKind::UInt64 : EPropertyGenKind::Int64;
		default:
			return bUnsigned ? EPropertyGenKind::Byte : EPropertyGenKind::Int8;
	}
}
}

TArray<FProperty*> FScriptHeaderTypes::AddProperties(
	UStruct* Struct, const std::vector<FPropertyDeclaration>& Properties, const FSource& Source)
{
	TArray<FProperty*> Added;
	FField** Tail = &Struct->ChildProperties;
	while (*Tail)
	{
		Tail = &(*Tail)->Next;
	}
	for (const FPropertyDeclaration& Declaration : Properties)
	{
		FPropertyDescription Description;
		Description.Name = ToName(Declaration.Name);
		if (Struct->FindChildProperty(Description.Name))
		{
			continue;
		}
		if (Struct->IsA<UClass>() && static_cast<UClass*>(Struct)->GetDefaultObject(false))
		{
			AddError(Source, Declaration.Position,
				FString::Printf(TEXT("%s has a default object already and takes no more properties"), *Struct->GetName()));
			continue;
		}
		if (!Describe(Declaration.Type, Description, Source, Declaration.Position))
		{
			continue;
		}
		if (Description.Kind == EPropertyGenKind::Struct && StructsBeingLaidOut.Contains(Description.Type))
		{
			AddError(Source, Declaration.Position, FString::Printf(TEXT("%s would hold a value of itself"), *Description.Type->GetName()));
			continue;
		}
		Description.PropertyFlags = static_cast<EPropertyFlags>(Declaration.Flags);
		Description.ArrayDim = static_cast<int32>(std::clamp<int64_t>(Declaration.ArrayDimValue.value_or(1), 1, MAX_uint16));
		Description.RepNotifyFunc = Declaration.RepNotifyFunction.empty() ? FName() : ToName(Declaration.RepNotifyFunction);
		Description.MetaData = ToMap(Declaration.MetaData);
		if (FProperty* const Property = ConstructPropertyFromDescription(Struct, Description))
		{
			*Tail = Property;
			Tail = &Property->Next;
			Added.Add(Property);
		}
	}
	return Added;
}

void FScriptHeaderTypes::ReadDefaults(FDeclaredDefaults& Defaults, const TArray<FProperty*>& Added,
	const std::vector<FPropertyDeclaration>& Declarations, const FSource& Source)
{
	// Properties were added in the order of their declarations, of which some may have been refused.
	int32 Next = 0;
	for (const FPropertyDeclaration& Declaration : Declarations)
	{
		const FProperty* const Property =
			Next < Added.Num() && Added[Next]->GetFName() == ToName(Declaration.Name) ? Added[Next++] : nullptr;
		if (Property && !Declaration.DefaultText.empty())
		{
			ReadDefault(Defaults, *Property, Declaration.DefaultText, Source, Declaration.Position);
		}
	}
}

void FScriptHeaderTypes::ReadDefault(
	FDeclaredDefaults& Defaults, const FProperty& Property, const std::string& Text, const FSource& Source, const FPosition& Position)
{
	void* const Value = Property.AllocateAndInitializeValue();
	if (FInitialiserReader(ToText(Text)).Read(&Property, Value))
	{
		Defaults.Add(&Property, Value);
		return;
	}
	Property.DestroyAndFreeValue(Value);
	AddError(Source, Position,
		FString::Printf(TEXT("the initial value of %s is not understood, so it is zero: %s"), *Property.GetName(), *ToText(Text)));
}

bool FScriptHeaderTypes::Describe(const FTypeReference& Type, FPropertyDescription& Out, const FSource& Source, const FPosition& Position)
{
	Out.Kind = GenKinds[static_cast<size_t>(Type.Kind)];
	Out.PropertyFlags |= Type.bWrapper ? CPF_UObjectWrapper : CPF_None;
	bool bFound = true;
	switch (Type.Kind)
	{
		case ETypeKind::Object:
		case ETypeKind::WeakObject:
		case ETypeKind::LazyObject:
		case ETypeKind::SoftObject:
			Out.Type = FindClass(Type.Name);
			bFound = Out.Type != nullptr;
			break;
		case ETypeKind::Class:
		case ETypeKind::SoftClass:
			Out.Type = UClass::StaticClass();
			Out.MetaClass = FindClass(Type.Name);
			bFound = Out.MetaClass != nullptr;
			break;
		case ETypeKind::Interface:
			Out.Type = FindClass("U" + Type.Name.substr(1));
			bFound = Out.Type != nullptr;
			break;
		case ETypeKind::EnumAsByte:
			Out.Type = FindEnum(Type.Name);
			bFound = Out.Type != nullptr;
			break;
		case ETypeKind::Array:
		case ETypeKind::Set:
		case ETypeKind::Map:
		case ETypeKind::Optional:
			Out.Inner = MakeShared<FPropertyDescription>();
			Out.Inner->Name = Type.Kind == ETypeKind::Map ? FName(*(Out.Name.ToString() + TEXT("_Key"))) : Out.Name;
			if (!Describe(Type.Arguments[0], *Out.Inner, Source, Position))
			{
				return false;
			}
			if (Type.Kind == ETypeKind::Map)
			{
				Out.Value = MakeShared<FPropertyDescription>();
				Out.Value->Name = Out.Name;
				return Describe(Type.Arguments[1], *Out.Value, Source, Position);
			}
			return true;
		case ETypeKind::Named:
			bFound = DescribeNamed(Type, Out);
			break;
		default:
			break;
	}
	if (!bFound)
	{
		AddError(Source, Position, FString::Printf(TEXT("there is no type %s, which %s has"), *ToText(Type.Name), *Out.Name.ToString()));
	}
	return bFound;
}

bool FScriptHeaderTypes::DescribeNamed(const FTypeReference& Type, FPropertyDescription& Out)
{
	auto Found = NamedTypes.find(Type.Name);
	if (Found == NamedTypes.end())
	{
		FNamedType Named;
		if (!FindNamed(Type.Name, Named))
		{
			return false;
		}
		Found = NamedTypes.emplace(Type.Name, Named).first;
	}
	Out.Kind = Found->second.Kind;
	Out.Type = Found->second.Type;
	if (Out.Kind == EPropertyGenKind::Enum)
	{
		static const FName UnderlyingType(TEXT("UnderlyingType"));
		Out.Inner = MakeShared<FPropertyDescription>();
		Out.Inner->Name = UnderlyingType;
		Out.Inner->Kind = Found->second.UnderlyingKind;
	}
	return true;
}

bool FScriptHeaderTypes::FindNamed(const std::string& Name, FNamedType& Out)
{
	const auto Delegate = Delegates.find(Name);
	const auto NativeDelegate = NativeTypes.find("delegate " + Name);
	if (Delegate != Delegates.end() || NativeDelegate != NativeTypes.end())
	{
		UFunction* const Signature = Delegate != Delegates.end() ? Delegate->second : static_cast<UFunction*>(NativeDelegate->second);
		Out.Kind = Signature->HasAnyFunctionFlags(FUNC_MulticastDelegate) ? EPropertyGenKind::MulticastInlineDelegate
																		  : EPropertyGenKind::Delegate;
		Out.Type = Signature;
		return true;
	}
	if (UScriptStruct* const Struct = FindStruct(Name))
	{
		Out.Kind = EPropertyGenKind::Struct;
		Out.Type = Struct;
		return true;
	}
	UEnum* const Enum = FindEnum(Name);
	if (!Enum)
	{
		return false;
	}
	Out.Type = Enum;
	Out.Kind = Enum->GetCppForm() == UEnum::ECppForm::EnumClass ? EPropertyGenKind::Enum : EPropertyGenKind::Byte;
	const auto Declaration = EnumDeclarations.find(Name);
	Out.UnderlyingKind = Declaration == EnumDeclarations.end() ? EPropertyGenKind::Byte : UnderlyingKind(*Declaration->second);
	return true;
}

UField* FScriptHeaderTypes::FindNative(UClass* TypeClass, const std::string& Name)
{
	if (Name.empty())
	{
		return nullptr;
	}
	const std::string Key =
		std::string(1, static_cast<char>('0' + (TypeClass == UClass::StaticClass()) + 2 * (TypeClass == UEnum::StaticClass()))) + Name;
	const auto Known = NativeTypes.find(Key);
	if (Known != NativeTypes.end())
	{
		return Known->second;
	}
	UObject* const Found = StaticFindFirstObject(TypeClass, *ToText(Name), EFindFirstObjectOptions::NativeFirst);
	UField* const Field = Found && Found->IsNative() ? static_cast<UField*>(Found) : nullptr;
	NativeTypes[Key] = Field;
	return Field;
}

UClass* FScriptHeaderTypes::FindClass(const std::string& CppName)
{
	const auto Found = Classes.find(CppName);
	if (Found != Classes.end())
	{
		return Found->second.Class;
	}
	return CppName.empty() ? nullptr : static_cast<UClass*>(FindNative(UClass::StaticClass(), CppName.substr(1)));
}

UScriptStruct* FScriptHeaderTypes::FindStruct(const std::string& CppName)
{
	const auto Found = Structs.find(CppName);
	if (Found != Structs.end())
	{
		// Its size must be known before a member of it is placed.
		CompleteStruct(Found->second);
		return Found->second.Struct;
	}
	return CppName.empty() ? nullptr : static_cast<UScriptStruct*>(FindNative(UScriptStruct::StaticClass(), CppName.substr(1)));
}

UEnum* FScriptHeaderTypes::FindEnum(const std::string& CppName)
{
	const auto Found = Enums.find(CppName);
	return Found != Enums.end() ? Found->second : static_cast<UEnum*>(FindNative(UEnum::StaticClass(), CppName));
}
