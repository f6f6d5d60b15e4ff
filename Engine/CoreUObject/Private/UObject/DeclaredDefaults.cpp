#include "DeclaredDefaults.h"

#include "UObject/Class.h"
#include "UObject/UnrealType.h"

FDeclaredDefaults::~FDeclaredDefaults()
{
	for (const TPair<const FProperty*, void*>& Pair : Values)
	{
		Pair.Key->DestroyAndFreeValue(Pair.Value);
	}
}

void FDeclaredDefaults::ApplyTo(void* Container) const
{
	for (const TPair<const FProperty*, void*>& Pair : Values)
	{
		Pair.Key->SetValue_InContainer(Container, Pair.Value);
	}
}

void UStruct::SetDeclaredDefaults(FDeclaredDefaults* InDefaults)
{
	delete DeclaredDefaults;
	DeclaredDefaults = InDefaults;
}

void UStruct::ApplyOwnDeclaredDefaults(void* Container) const
{
	if (DeclaredDefaults)
	{
		DeclaredDefaults->ApplyTo(Container);
	}
}

void UStruct::ApplyDeclaredDefaults(void* Container) const
{
	if (SuperStruct)
	{
		SuperStruct->ApplyDeclaredDefaults(Container);
	}
	ApplyOwnDeclaredDefaults(Container);
}
