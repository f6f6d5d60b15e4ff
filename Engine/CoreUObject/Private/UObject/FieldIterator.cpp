#include "UObject/FieldIterator.h"

#include "UObject/Casts.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

TArray<const UStruct*> GatherFieldIterationStructs(const UStruct* Struct, EFieldIterationFlags Flags)
{
	TArray<const UStruct*> Result;
	const bool bIncludeSuper = EnumHasAnyFlags(Flags, EFieldIterationFlags::IncludeSuper);
	const bool bIncludeInterfaces = EnumHasAnyFlags(Flags, EFieldIterationFlags::IncludeInterfaces);
	for (const UStruct* Current = Struct; Current; Current = bIncludeSuper ? Current->GetSuperStruct() : nullptr)
	{
		Result.Add(Current);
		const UClass* const Class = bIncludeInterfaces ? Cast<UClass>(Current) : nullptr;
		for (int32 Index = 0; Class && Index < Class->Interfaces.Num(); ++Index)
		{
			if (const UClass* const Interface = Class->Interfaces[Index].Class)
			{
				Result.Add(Interface);
			}
		}
	}
	return Result;
}

bool IsDeprecatedField(const FField* Field)
{
	const FProperty* const Property = CastField<FProperty>(Field);
	return Property && Property->HasAnyPropertyFlags(CPF_Deprecated);
}

FProperty* FindPropertyByPath(const TCHAR* FieldPath)
{
	FString Owner;
	FString Name;
	if (!FString(FieldPath).Split(TEXT(":"), &Owner, &Name, ESearchCase::CaseSensitive, ESearchDir::FromEnd))
	{
		return nullptr;
	}
	const UStruct* Struct = FindObject<UStruct>(nullptr, *Owner);
	// A function's parameter is separated from its function by a dot, as is the function from nothing else.
	FString FunctionName;
	FString ParameterName;
	if (Name.Split(TEXT("."), &FunctionName, &ParameterName))
	{
		Struct = Struct ? FindUField<UFunction>(Struct, *FunctionName) : nullptr;
		Name = ParameterName;
	}
	return FindFProperty<FProperty>(Struct, *Name);
}
