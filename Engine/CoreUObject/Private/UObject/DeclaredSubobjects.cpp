#include "DeclaredSubobjects.h"

#include "DeclaredDefaults.h"
#include "ObjectBootstrap.h"
#include "UObject/ObjectProperty.h"
#include "UObject/UObjectGlobals.h"

const FDeclaredSubobjects* FDeclaredSubobjects::Find(const UClass* Class)
{
	for (; Class && !IsNativeClass(Class); Class = Class->GetSuperClass())
	{
		const FDeclaredDefaults* const Defaults = FObjectBootstrap::GetDeclaredDefaults(Class);
		if (Defaults && Defaults->GetSubobjects())
		{
			return Defaults->GetSubobjects();
		}
	}
	return nullptr;
}

int32 FDeclaredSubobjects::FindIndex(FName Name) const
{
	return All.IndexOfByPredicate([Name](const FDeclaredSubobject& Subobject)
		{ return Subobject.Name == Name; });
}

void FDeclaredSubobjects::Make(const FObjectInitializer& Initializer) const
{
	for (const FDeclaredSubobject& Subobject : All)
	{
		if (Subobject.Class)
		{
			Initializer.CreateDefaultSubobject(
				Initializer.GetObj(), Subobject.Name, Subobject.Class, Subobject.Class, !Subobject.bOptional);
		}
	}
	Join(Initializer.GetObj());
}

UObject* FDeclaredSubobjects::GetPart(UObject* Object, int32 Index) const
{
	return All[Index].Class ? StaticFindObjectFast(nullptr, Object, All[Index].Name) : nullptr;
}

void FDeclaredSubobjects::Join(UObject* Object) const
{
	for (int32 Index = 0; Index < All.Num(); ++Index)
	{
		UObject* const Part = All[Index].Siblings.IsEmpty() ? nullptr : GetPart(Object, Index);
		for (const auto& [Property, Sibling] : All[Index].Siblings)
		{
			if (Part)
			{
				Property->SetObjectPropertyValue_InContainer(Part, GetPart(Object, Sibling));
			}
		}
	}
}

void FDeclaredSubobjects::SetMembers(UObject* Object) const
{
	for (int32 Index = 0; Index < All.Num(); ++Index)
	{
		for (const FObjectProperty* const Member : All[Index].Members)
		{
			Member->SetObjectPropertyValue_InContainer(Object, GetPart(Object, Index));
		}
	}
}

void FDeclaredSubobjects::SetValues(UObject* Object) const
{
	Join(Object);
	for (int32 Index = 0; Index < All.Num(); ++Index)
	{
		UObject* const Part = GetPart(Object, Index);
		for (const TSharedPtr<const FDeclaredDefaults>& Values : All[Index].Values)
		{
			if (Part)
			{
				Values->ApplyTo(Part);
			}
		}
	}
}

int64 FDeclaredSubobjects::GetMemorySize() const
{
	int64 Size = 0;
	for (const FDeclaredSubobject& Subobject : All)
	{
		Size += Subobject.Class ? Subobject.Class->GetStructureSize() : 0;
	}
	return Size;
}
