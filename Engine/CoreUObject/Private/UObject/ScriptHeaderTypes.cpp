#include "ScriptHeaderTypes.h"

#include "CompiledInTypes.h"
#include "DeclaredDefaults.h"
#include "ScriptHeaderText.h"
#include "UObject/Interface.h"
#include "UObject/Package.h"
#include "UObject/PlaceholderObject.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"
#include "UObject/UnrealType.h"

using namespace HeaderParser;
using namespace ScriptHeaderText;

namespace
{
constexpr EObjectFlags TypeFlags = static_cast<EObjectFlags>(RF_Public | RF_Transient | RF_MarkAsNative);

void SetMetaData(UField* Field, const HeaderParser::FMetaData& MetaData)
{
	if (!MetaData.Pairs().empty())
	{
		Field->GetPackage()->GetMetaData().SetObjectValues(Field, ToMap(MetaData));
	}
}

void SetDefaults(UStruct* Struct, TUniquePtr<FDeclaredDefaults>&& Defaults)
{
	if (!Defaults->IsEmpty())
	{
		Struct->SetDeclaredDefaults(Defaults.Release());
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
	for (const std::string& Name : ClassOrder)
	{
		SetClassFlags(Classes.at(Name));
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
	EnumDeclarations[Declaration.Name] = &Declaration;
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
	Struct.Struct =
		bKnown ? static_cast<UScriptStruct*>(Existing) : NewObject<UScriptStruct>(Package, WithoutPrefix(Declaration.Name), TypeFlags);
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
		AddError(Source, Declaration.Position,
			FString::Printf(TEXT("there is no class %s of the same base to continue"), *ToText(Declaration.Name)));
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
	UFunction* const Function = Declaration.bSparse ? NewObject<USparseDelegateFunction>(Outer, Name, TypeFlags)
													: NewObject<UDelegateFunction>(Outer, Name, TypeFlags);
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
	const TArray<FProperty*> Added = AddProperties(Struct.Struct, Declaration.Properties, *Struct.Source);
	StructsBeingLaidOut.Remove(Struct.Struct);
	MarkInstancedReferences(Struct.Struct);
	Struct.Struct->StaticLink(true);
	TUniquePtr<FDeclaredDefaults> Defaults = MakeUnique<FDeclaredDefaults>();
	ReadDefaults(*Defaults, Added, Declaration.Properties, *Struct.Source);
	SetDefaults(Struct.Struct, MoveTemp(Defaults));
}

void FScriptHeaderTypes::SetClassFlags(FClassInProgress& Class)
{
	if (Class.bHasFlags || !Class.Class || Class.bExtends)
	{
		return;
	}
	Class.bHasFlags = true;
	const FClassDeclaration& Declaration = *Class.Declaration;
	if (const auto SuperInProgress = Classes.find(Declaration.Super); SuperInProgress != Classes.end())
	{
		SetClassFlags(SuperInProgress->second);
	}
	Class.Class->ClassFlags = static_cast<EClassFlags>(Declaration.Flags) | CLASS_Native | CLASS_Constructed | CLASS_MatchedSerializers;
	if (const UClass* const Super = Declaration.Super.empty() ? nullptr : FindClass(Declaration.Super))
	{
		Class.Class->ClassFlags |= Super->ClassFlags & CLASS_Inherit;
	}
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
		AddError(
			*Class.Source, Declaration.Position, FString::Printf(TEXT("there is no class %s to derive from"), *ToText(Declaration.Super)));
	}
	Class.Class->ClassConfigName = Declaration.ConfigName.empty() ? FName() : ToName(Declaration.ConfigName);
	Class.Class->ClassWithin = Declaration.Within.empty() ? nullptr : FindClass(Declaration.Within);
	Class.Class->SetSuperStruct(Super && !Super->IsChildOf(Class.Class) ? Super : UObject::StaticClass());
	Class.Class->Bind();
	SetMetaData(Class.Class, Declaration.MetaData);
	AddInterfaces(Class);
	const TArray<TArray<FProperty*>> Added = AddClassProperties(Class);
	MarkInstancedReferences(Class.Class);
	Class.Class->StaticLink(true);
	ReadClassDefaults(Class, Added);
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
	const TArray<TArray<FProperty*>> AddedByDeclaration = AddClassProperties(Extension);
	TArray<FProperty*> Added;
	for (const TArray<FProperty*>& Properties : AddedByDeclaration)
	{
		Added.Append(Properties);
	}
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
	ReadClassDefaults(Extension, AddedByDeclaration);
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
	TArray<UFunction*> Added;
	for (const FFunctionDeclaration& Declaration : Functions)
	{
		const FName Name = ToName(Declaration.Name);
		// A function that C++ or another header has stays, and so does the first of two in this one.
		if (StaticFindObjectFast(UFunction::StaticClass(), Class, Name))
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
		Added.Add(Function);
	}
	Class->AddFunctionsToFunctionMap(Added);
	Report.NumFunctions += Added.Num();
}

TArray<TArray<FProperty*>> FScriptHeaderTypes::AddClassProperties(FClassInProgress& Class)
{
	TArray<TArray<FProperty*>> Added;
	Added.Add(AddProperties(Class.Class, Class.Declaration->Properties, *Class.Source));
	for (const TDeclared<FClassDeclaration>& Continuation : Class.Continuations)
	{
		Added.Add(AddProperties(Class.Class, Continuation.Declaration->Properties, *Continuation.Source));
	}
	return Added;
}

void FScriptHeaderTypes::ReadClassDefaults(FClassInProgress& Class, const TArray<TArray<FProperty*>>& Added)
{
	TUniquePtr<FDeclaredDefaults> Defaults = MakeUnique<FDeclaredDefaults>();
	if (const auto& Inherited = Class.Declaration->InheritedDefault)
	{
		const FProperty* const Property = Class.Class->FindPropertyByName(ToName(Inherited->first));
		if (Property)
		{
			ReadDefault(*Defaults, *Property, Inherited->second, *Class.Source, Class.Declaration->Position);
		}
		else
		{
			AddError(*Class.Source, Class.Declaration->Position, FString::Printf(TEXT("there is no member %s to inherit"), *ToText(Inherited->first)));
		}
	}
	ReadDefaults(*Defaults, Added[0], Class.Declaration->Properties, *Class.Source);
	int32 Index = 0;
	for (const TDeclared<FClassDeclaration>& Continuation : Class.Continuations)
	{
		ReadDefaults(*Defaults, Added[++Index], Continuation.Declaration->Properties, *Continuation.Source);
	}
	SetDefaults(Class.Class, MoveTemp(Defaults));
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
