#include "Lum/LumHelper.h"

#include "Engine/Blueprint.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

namespace
{
const TCHAR* const ReferencePrefix = TEXT("ref|");
const TCHAR* const NullPath = TEXT("None");

bool IsOfClass(const UObject& Object, const UClass& Class)
{
	return Object.IsA(&Class) || Object.GetClass()->ImplementsInterface(&Class);
}

/** Where a class is wanted, people name the Blueprint that has it. */
FString DescribeClassOf(const UObject& Object, const UClass& Wanted)
{
	const UBlueprint* const Blueprint = &Wanted == UClass::StaticClass() ? Cast<UBlueprint>(&Object) : nullptr;
	const UClass* const Class = Blueprint ? Blueprint->GeneratedClass.Get() : nullptr;
	return Class ? FString::Printf(TEXT("; its class is '%s'"), *Class->GetPathName()) : FString();
}

/** An object that is not public is known to its own package alone; a reference from another one could not be saved. */
bool IsPrivateTo(const UObject& Object, const UObject& Referrer)
{
	return !Object.HasAnyFlags(RF_Public) && Object.GetOutermost() != Referrer.GetOutermost() && !Object.IsA<UPackage>();
}
}

FString FLumHelper::MakeReferenceString(const UObject* Object)
{
	return MakeReferenceString(Object ? Object->GetPathName() : FString());
}

FString FLumHelper::MakeReferenceString(const FString& ObjectPath)
{
	return FString(ReferencePrefix) + (ObjectPath.IsEmpty() ? FString(NullPath) : ObjectPath);
}

TVexelExpected<FString> FLumHelper::ParseReferenceString(const FString& Reference)
{
	if (!Reference.StartsWith(ReferencePrefix, ESearchCase::CaseSensitive))
	{
		return VEXEL_ERROR(FLumError_Read, "Invalid reference string");
	}
	FString Path = Reference.RightChop(FStringView(ReferencePrefix).Len());
	return Path == NullPath ? FString() : Path;
}

TVexelExpected<UObject*> FLumHelper::ResolveReference(const FString& Path, const UClass* Class, const UObject* Referrer)
{
	if (Path.IsEmpty())
	{
		return static_cast<UObject*>(nullptr);
	}
	const bool bCanBeNames = Path.Len() < NAME_SIZE;
	UObject* const Object = bCanBeNames ? StaticLoadObject(UObject::StaticClass(), nullptr, *Path, nullptr, LOAD_NoWarn | LOAD_Quiet)
										: nullptr;
	if (!Object)
	{
		return VEXEL_ERROR(FLumError_Import, "There is no object '%s'", *Path);
	}
	if (Class && !IsOfClass(*Object, *Class))
	{
		return VEXEL_ERROR(FLumError_Import, "'%s' is a %s, not a %s%s", *Path, *Object->GetClass()->GetName(), *Class->GetName(),
			*DescribeClassOf(*Object, *Class));
	}
	if (Referrer && IsPrivateTo(*Object, *Referrer))
	{
		return VEXEL_ERROR(FLumError_Import, "'%s' is private to its package", *Path);
	}
	return Object;
}
