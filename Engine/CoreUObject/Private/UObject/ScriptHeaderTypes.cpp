#include "ScriptHeaderTypes.h"

#include "CompiledInTypes.h"
#include "HeaderParser/Parser.h"
#include "UObject/EnumProperty.h"
#include "UObject/Interface.h"
#include "UObject/Package.h"
#include "UObject/PlaceholderObject.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"
#include "UObject/UnrealType.h"

using namespace HeaderParser;
using UECodeGen_Private::EPropertyGenKind;

namespace
{
constexpr EObjectFlags TypeFlags = static_cast<EObjectFlags>(RF_Public | RF_Transient | RF_MarkAsNative);

FString ToText(const std::string& Text)
{
	return FString(FUtf8StringView(reinterpret_cast<const UTF8CHAR*>(Text.data()), static_cast<int32>(Text.size())));
}

FName ToName(const std::string& Text)
{
	return FName(*ToText(Text));
}

/** Names of types carry a prefix in C++ and none in reflection. */
FName WithoutPrefix(const std::string& CppName)
{
	return ToName(CppName.substr(1));
}

TMap<FName, FString> ToMap(const HeaderParser::FMetaData& MetaData, const std::string& Prefix = std::string())
{
	TMap<FName, FString> Map;
	for (const auto& [Key, Value] : MetaData.Pairs())
	{
		Map.Add(ToName(Prefix + Key), ToText(Value));
	}
	return Map;
}

void SetMetaData(UField* Field, const HeaderParser::FMetaData& MetaData)
{
	if (!MetaData.Pairs().empty())
	{
		Field->GetPackage()->GetMetaData().SetObjectValues(Field, ToMap(MetaData));
	}
}

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

FScriptHeaderTypes::FScriptHeaderTypes(std::vector<FSource>& InSources, UE::CoreUObject::FScriptHeaderReport& InReport)
	: Sources(InSources)
	, Report(InReport)
{
}

void FScriptHeaderTypes::AddError(const FSource& Source, const FPosition& Position, const FString& Message)
{
	Report.Errors.Add(FString::Printf(TEXT("%s:%d:%d: error: %s"), *Source.Path, Position.Line, Position.Column, *Message));
}

UPackage* FScriptHeaderTypes::GetPackage(const FSource& Source) const
{
	UPackage* const Package = CreatePackage(*ToText(Source.Header.Package));
	Package->SetPackageFlags(PKG_CompiledIn | PKG_ContainsScript);
	Package->SetInternalFlags(EInternalObjectFlags::Native);
	return Package;
}

void FScriptHeaderTypes::MakeAll()
{
	for (const FSource& Source : Sources)
	{
		for (const FEnumDeclaration& Enum : Source.Header.Enums)
		{
			MakeEnum(Enum, Source);
		}
		for (const FStructDeclaration& Struct : Source.Header.Structs)
		{
			NameStruct(Struct, Source);
		}
		for (const FClassDeclaration& Class : Source.Header.Classes)
		{
			if (!Class.bContinues)
			{
				NameClass(Class, Source);
			}
		}
	}
	for (const FSource& Source : Sources)
	{
		for (const FClassDeclaration& Class : Source.Header.Classes)
		{
			if (Class.bContinues)
			{
				NameContinuation(Class, Source);
			}
		}
		for (const FDelegateDeclaration& Delegate : Source.Header.Delegates)
		{
			NameDelegate(Delegate, Source);
		}
	}
	for (const std::string& Name : StructOrder)
	{
		CompleteStruct(Structs.at(Name));
	}
	for (const auto& [Name, Function] : Delegates)
	{
		const TDeclared<FDelegateDeclaration>& Declared = DelegateDeclarations.at(Name);
		MakeFunction(Function, Declared.Declaration->Signature, *Declared.Source);
	}
	for (const std::string& Name : ClassOrder)
	{
		CompleteClass(Classes.at(Name));
	}
	for (const std::string& Name : ClassOrder)
	{
		FClassInProgress& Class = Classes.at(Name);
		if (Class.Class)
		{
			AddFunctions(Class);
		}
	}
}

void FScriptHeaderTypes::MakeEnum(const FEnumDeclaration& Declaration, const FSource& Source)
{
	UPackage* const Package = GetPackage(Source);
	const FName Name = ToName(Declaration.Name);
	UObject* const Existing = StaticFindObjectFast(UEnum::StaticClass(), Package, Name);
	if (Existing && !UE::CoreUObject::IsPlaceholder(Existing))
	{
		Enums[Declaration.Name] = static_cast<UEnum*>(Existing);
		return;
	}
	UEnum* const Enum = NewObject<UEnum>(Package, Name, TypeFlags);
	Enums[Declaration.Name] = Enum;
	++Report.NumEnums;
	TArray<TPair<FName, int64>> Names;
	TMap<FName, FString> MetaData = ToMap(Declaration.MetaData);
	int64 Next = 0;
	for (const FEnumeratorDeclaration& Enumerator : Declaration.Enumerators)
	{
		if (!Enumerator.Value)
		{
			AddError(Source, Enumerator.Position, FString::Printf(TEXT("the value of %s is not a number"), *ToText(Enumerator.Name)));
		}
		const int64 Value = Enumerator.Value.value_or(Next);
		Next = Value == MAX_int64 ? Value : Value + 1;
		Names.Emplace(ToName(Declaration.QualifiedName(Enumerator)), Value);
		MetaData.Append(ToMap(Enumerator.MetaData, Enumerator.Name + "."));
	}
	Enum->CppType = ToText(Declaration.InnerName.empty() ? Declaration.Name : Declaration.Name + "::" + Declaration.InnerName);
	Enum->SetEnums(Names, static_cast<UEnum::ECppForm>(Declaration.Form), Declaration.bFlags ? EEnumFlags::Flags : EEnumFlags::None);
	if (!MetaData.IsEmpty())
	{
		Package->GetMetaData().SetObjectValues(Enum, MoveTemp(MetaData));
	}
}

void FScriptHeaderTypes::NameStruct(const FStructDeclaration& Declaration, const FSource& Source)
{
	UPackage* const Package = GetPackage(Source);
	UObject* const Existing = StaticFindObjectFast(UScriptStruct::StaticClass(), Package, WithoutPrefix(Declaration.Name));
	const bool bKnown = Existing && !UE::CoreUObject::IsPlaceholder(Existing);
	if (!bKnown && Structs.contains(Declaration.Name))
	{
		AddError(Source, Declaration.Position, FString::Printf(TEXT("%s is declared twice"), *ToText(Declaration.Name)));
		return;
	}
	FStructInProgress& Struct = Structs[Declaration.Name];
	Struct.Declaration = &Declaration;
	Struct.Source = &Source;
	Struct.bDone = bKnown;
	Struct.Struct = bKnown ? static_cast<UScriptStruct*>(Existing) : NewObject<UScriptStruct>(Package, WithoutPrefix(Declaration.Name), TypeFlags);
	if (!bKnown)
	{
		StructOrder.push_back(Declaration.Name);
		++Report.NumStructs;
	}
}

void FScriptHeaderTypes::NameClass(const FClassDeclaration& Declaration, const FSource& Source)
{
	UPackage* const Package = GetPackage(Source);
	const FName Name = WithoutPrefix(Declaration.Name);
	UObject* const Found = StaticFindObjectFast(UClass::StaticClass(), Package, Name);
	UClass* const Existing = Found && !UE::CoreUObject::IsPlaceholder(Found) ? static_cast<UClass*>(Found) : nullptr;
	if (Declaration.bExtendsNative && !Existing)
	{
		AddError(Source, Declaration.Position, FString::Printf(TEXT("there is no native class %s to extend"), *ToText(Declaration.Name)));
		return;
	}
	if (Classes.contains(Declaration.Name))
	{
		AddError(Source, Declaration.Position, FString::Printf(TEXT("%s is declared twice"), *ToText(Declaration.Name)));
		return;
	}
	FClassInProgress& Class = Classes[Declaration.Name];
	Class.Declaration = &Declaration;
	Class.Source = &Source;
	Class.Class = Existing ? Existing : NewObject<UClass>(Package, Name, TypeFlags);
	if (Existing && !Declaration.bExtendsNative)
	{
		Class.bDone = true;
		return;
	}
	Class.bExtends = Existing != nullptr;
	ClassOrder.push_back(Declaration.Name);
	if (Existing)
	{
		++Report.NumExtendedClasses;
		return;
	}
	Class.Class->bLaidOutAtRunTime = true;
	++Report.NumClasses;
}

void FScriptHeaderTypes::NameContinuation(const FClassDeclaration& Declaration, const FSource& Source)
{
	const auto Class = Classes.find(Declaration.Name);
	if (Class == Classes.end() || !Class->second.Declaration || Class->second.Declaration->Super != Declaration.Super)
	{
		AddError(Source, Declaration.Position, FString::Printf(TEXT("there is no class %s of the same base to continue"), *ToText(Declaration.Name)));
		return;
	}
	Class->second.Continuations.push_back({&Declaration, &Source});
}

void FScriptHeaderTypes::NameDelegate(const FDelegateDeclaration& Declaration, const FSource& Source)
{
	UObject* Outer = Declaration.OuterClass.empty() ? static_cast<UObject*>(GetPackage(Source)) : FindClass(Declaration.OuterClass);
	if (!Outer)
	{
		AddError(Source, Declaration.Position, FString::Printf(TEXT("there is no class %s"), *ToText(Declaration.OuterClass)));
		return;
	}
	const FName Name = ToName(Declaration.Signature.Name);
	if (UObject* const Existing = StaticFindObjectFast(UFunction::StaticClass(), Outer, Name))
	{
		NativeTypes["delegate " + Declaration.Name] = static_cast<UFunction*>(Existing);
		return;
	}
	UFunction* const Function = Declaration.bSparse ? NewObject<USparseDelegateFunction>(Outer, Name, TypeFlags) : NewObject<UDelegateFunction>(Outer, Name, TypeFlags);
	// Members of its type are made before it is completed, and ask whether it is multicast.
	Function->FunctionFlags = static_cast<EFunctionFlags>(Declaration.Signature.Flags);
	Delegates[Declaration.Name] = Function;
	DelegateDeclarations[Declaration.Name] = {&Declaration, &Source};
	if (UClass* const OuterClass = Function->GetOuterUClass())
	{
		Function->Next = OuterClass->Children;
		OuterClass->Children = Function;
	}
}

void FScriptHeaderTypes::CompleteStruct(FStructInProgress& Struct)
{
	if (Struct.bDone)
	{
		return;
	}
	Struct.bDone = true;
	const FStructDeclaration& Declaration = *Struct.Declaration;
	Struct.Struct->StructFlags = static_cast<EStructFlags>(Declaration.Flags);
	if (!Declaration.Super.empty())
	{
		UScriptStruct* const Super = FindStruct(Declaration.Super);
		if (Super && Super != Struct.Struct)
		{
			Struct.Struct->SetSuperStruct(Super);
		}
		else
		{
			AddError(*Struct.Source, Declaration.Position, FString::Printf(TEXT("there is no struct %s"), *ToText(Declaration.Super)));
		}
	}
	SetMetaData(Struct.Struct, Declaration.MetaData);
	StructsBeingLaidOut.Add(Struct.Struct);
	AddProperties(Struct.Struct, Declaration.Properties, *Struct.Source);
	StructsBeingLaidOut.Remove(Struct.Struct);
	MarkInstancedReferences(Struct.Struct);
	Struct.Struct->StaticLink(true);
}

void FScriptHeaderTypes::CompleteClass(FClassInProgress& Class)
{
	if (Class.bDone || !Class.Class)
	{
		return;
	}
	Class.bDone = true;
	const FClassDeclaration& Declaration = *Class.Declaration;
	// Members of a class are laid out after its super's, additions to the super included.
	UClass* const Super = Declaration.Super.empty() ? nullptr : FindClass(Declaration.Super);
	if (const auto SuperInProgress = Classes.find(Declaration.Super); SuperInProgress != Classes.end())
	{
		CompleteClass(SuperInProgress->second);
	}
	if (Class.bExtends)
	{
		ExtendClass(Class);
		return;
	}
	if (!Super || Super->IsChildOf(Class.Class))
	{
		AddError(*Class.Source, Declaration.Position, FString::Printf(TEXT("there is no class %s to derive from"), *ToText(Declaration.Super)));
	}
	Class.Class->ClassFlags = static_cast<EClassFlags>(Declaration.Flags) | CLASS_Native | CLASS_Constructed | CLASS_MatchedSerializers;
	Class.Class->ClassConfigName = Declaration.ConfigName.empty() ? FName() : ToName(Declaration.ConfigName);
	Class.Class->ClassWithin = Declaration.Within.empty() ? nullptr : FindClass(Declaration.Within);
	Class.Class->SetSuperStruct(Super && !Super->IsChildOf(Class.Class) ? Super : UObject::StaticClass());
	Class.Class->Bind();
	SetMetaData(Class.Class, Declaration.MetaData);
	AddInterfaces(Class);
	AddClassProperties(Class);
	MarkInstancedReferences(Class.Class);
	Class.Class->StaticLink(true);
}

void FScriptHeaderTypes::ExtendClass(FClassInProgress& Extension)
{
	UClass* const Class = Extension.Class;
	for (const auto& [Key, Value] : Extension.Declaration->MetaData.Pairs())
	{
		if (!Class->HasMetaData(ToName(Key)))
		{
			Class->SetMetaData(ToName(Key), *ToText(Value));
		}
	}
	AddInterfaces(Extension);
	const TArray<FProperty*> Added = AddClassProperties(Extension);
	if (Added.IsEmpty())
	{
		return;
	}
	// Behind the members of every class below, so that the place is the same in all of them and no C++ member is there.
	TArray<UClass*> Family;
	GetDerivedClasses(Class, Family);
	Family.Insert(Class, 0);
	int32 End = 0;
	for (const UClass* const Member : Family)
	{
		End = std::max(End, Member->GetStructureSize());
	}
	FArchive Linker;
	for (FProperty* const Property : Added)
	{
		Property->SetFlags(RF_Dynamic);
		Property->LinkWithoutChangingOffset(Linker);
		End = Property->SetupOffset(End);
	}
	MarkInstancedReferences(Class);
	for (UClass* const Member : Family)
	{
		Member->PropertiesSize = End;
		Member->StaticLink();
	}
}

void FScriptHeaderTypes::AddInterfaces(FClassInProgress& Class)
{
	for (const std::string& Name : Class.Declaration->Interfaces)
	{
		UClass* const Interface = FindClass("U" + Name.substr(1));
		if (!Interface)
		{
			AddError(*Class.Source, Class.Declaration->Position, FString::Printf(TEXT("there is no interface %s"), *ToText(Name)));
		}
		else if (!Class.Class->FindImplementedInterface(Interface))
		{
			Class.Class->Interfaces.Add(FImplementedInterface(Interface, 0, true));
		}
	}
}

void FScriptHeaderTypes::AddFunctions(FClassInProgress& Class)
{
	AddFunctions(Class.Class, Class.Declaration->Functions, *Class.Source);
	for (const TDeclared<FClassDeclaration>& Continuation : Class.Continuations)
	{
		AddFunctions(Class.Class, Continuation.Declaration->Functions, *Continuation.Source);
	}
}

void FScriptHeaderTypes::AddFunctions(UClass* Class, const std::vector<FFunctionDeclaration>& Functions, const FSource& Source)
{
	UField* Tail = Class->Children;
	while (Tail && Tail->Next)
	{
		Tail = Tail->Next;
	}
	for (const FFunctionDeclaration& Declaration : Functions)
	{
		const FName Name = ToName(Declaration.Name);
		if (Class->FindFunctionByName(Name, EIncludeSuperFlag::ExcludeSuper))
		{
			continue;
		}
		UFunction* const Function = NewObject<UFunction>(Class, Name, TypeFlags);
		if (const UClass* const Super = Class->GetSuperClass())
		{
			Function->SetSuperStruct(Super->FindFunctionByName(Name));
		}
		MakeFunction(Function, Declaration, Source);
		(Tail ? Tail->Next : Class->Children) = Function;
		Tail = Function;
		Class->AddFunctionToFunctionMap(Function, Name);
		++Report.NumFunctions;
	}
}

TArray<FProperty*> FScriptHeaderTypes::AddClassProperties(FClassInProgress& Class)
{
	TArray<FProperty*> Added = AddProperties(Class.Class, Class.Declaration->Properties, *Class.Source);
	for (const TDeclared<FClassDeclaration>& Continuation : Class.Continuations)
	{
		Added.Append(AddProperties(Class.Class, Continuation.Declaration->Properties, *Continuation.Source));
	}
	return Added;
}

void FScriptHeaderTypes::MakeFunction(UFunction* Function, const FFunctionDeclaration& Declaration, const FSource& Source)
{
	Function->FunctionFlags = static_cast<EFunctionFlags>(Declaration.Flags);
	AddProperties(Function, Declaration.Parameters, Source);
	if (Declaration.ReturnValue)
	{
		AddProperties(Function, {*Declaration.ReturnValue}, Source);
	}
	SetMetaData(Function, Declaration.MetaData);
	Function->StaticLink(true);
}

TArray<FProperty*> FScriptHeaderTypes::AddProperties(UStruct* Struct, const std::vector<FPropertyDeclaration>& Properties, const FSource& Source)
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
			AddError(Source, Declaration.Position, FString::Printf(TEXT("%s has a default object already and takes no more properties"), *Struct->GetName()));
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
	const auto Delegate = Delegates.find(Type.Name);
	const auto NativeDelegate = NativeTypes.find("delegate " + Type.Name);
	if (Delegate != Delegates.end() || NativeDelegate != NativeTypes.end())
	{
		UFunction* const Signature = Delegate != Delegates.end() ? Delegate->second : static_cast<UFunction*>(NativeDelegate->second);
		Out.Kind = Signature->HasAnyFunctionFlags(FUNC_MulticastDelegate) ? EPropertyGenKind::MulticastInlineDelegate : EPropertyGenKind::Delegate;
		Out.Type = Signature;
		return true;
	}
	if (UScriptStruct* const Struct = FindStruct(Type.Name))
	{
		Out.Kind = EPropertyGenKind::Struct;
		Out.Type = Struct;
		return true;
	}
	UEnum* const Enum = FindEnum(Type.Name);
	if (!Enum)
	{
		return false;
	}
	Out.Type = Enum;
	Out.Kind = Enum->GetCppForm() == UEnum::ECppForm::EnumClass ? EPropertyGenKind::Enum : EPropertyGenKind::Byte;
	if (Out.Kind == EPropertyGenKind::Enum)
	{
		Out.Inner = MakeShared<FPropertyDescription>();
		Out.Inner->Name = FName(TEXT("UnderlyingType"));
		Out.Inner->Kind = EPropertyGenKind::Byte;
		for (const FSource& Source : Sources)
		{
			for (const FEnumDeclaration& Declaration : Source.Header.Enums)
			{
				if (Declaration.Name == Type.Name)
				{
					Out.Inner->Kind = UnderlyingKind(Declaration);
				}
			}
		}
	}
	return true;
}

UField* FScriptHeaderTypes::FindNative(UClass* TypeClass, const std::string& Name)
{
	if (Name.empty())
	{
		return nullptr;
	}
	const std::string Key = std::string(1, static_cast<char>('0' + (TypeClass == UClass::StaticClass()) + 2 * (TypeClass == UEnum::StaticClass()))) + Name;
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
