#include "Misc/ConfigCacheIni.h"
#include "Misc/Paths.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

// Config properties: text in the class's ini, in the section that is named after the class's path.

namespace
{
FString FindFile(const UClass* Class, const TCHAR* Filename)
{
	if (Filename)
	{
		return Filename;
	}
	const FString Name = Class->GetConfigName();
	return Name.IsEmpty() ? FString() : GConfig->LoadGlobalIniFile(Name);
}

/** The section of the class that the value belongs to: a GlobalConfig property is one for all classes below its own. */
FString SectionOf(const UClass* Class, const FProperty* Property)
{
	const UClass* const Owner = Property->HasAnyPropertyFlags(CPF_GlobalConfig) ? Property->GetOwnerClass() : Class;
	return Owner->GetPathName();
}

void LoadArray(const FArrayProperty* Property, UObject* Object, const TArray<FString>& Values)
{
	FScriptArrayHelper Helper(Property, Property->ContainerPtrToValuePtr<void>(Object));
	Helper.EmptyValues();
	for (const FString& Value : Values)
	{
		Property->Inner->ImportText_Direct(*Value, Helper.GetRawPtr(Helper.AddValue()), Object, PPF_None);
	}
}

void LoadProperty(const FProperty* Property, UObject* Object, const FString& Section, const FString& File)
{
	const FString Key = Property->GetName();
	if (const FArrayProperty* const Array = CastField<FArrayProperty>(Property))
	{
		TArray<FString> Values;
		if (GConfig->GetArray(*Section, *Key, Values, File) > 0)
		{
			LoadArray(Array, Object, Values);
		}
		return;
	}
	FString Value;
	if (GConfig->GetString(*Section, *Key, Value, File) && !Property->ImportText_InContainer(*Value, Object, Object, PPF_None))
	{
		UE_LOG(LogObj, Warning, TEXT("%s: '%s' in [%s] is no value of %s"), *File, *Value, *Section, *Property->GetFullName());
	}
}

void SaveProperty(const FProperty* Property, const UObject* Object, const FString& Section, const FString& File)
{
	const FString Key = Property->GetName();
	const auto Export = [Object](const FProperty* ValueProperty, const void* Value)
	{
		FString Text;
		ValueProperty->ExportTextItem_Direct(Text, Value, nullptr, const_cast<UObject*>(Object), PPF_None);
		return Text;
	};
	if (const FArrayProperty* const Array = CastField<FArrayProperty>(Property))
	{
		FScriptArrayHelper Helper(Array, Array->ContainerPtrToValuePtr<void>(const_cast<UObject*>(Object)));
		TArray<FString> Values;
		for (int32 Index = 0; Index < Helper.Num(); ++Index)
		{
			Values.Add(Export(Array->Inner, Helper.GetRawPtr(Index)));
		}
		GConfig->SetArray(*Section, *Key, Values, File);
		return;
	}
	GConfig->SetString(*Section, *Key, *Export(Property, Property->ContainerPtrToValuePtr<void>(Object)), File);
}
}

void UObject::LoadConfig(UClass* ConfigClass, const TCHAR* Filename, uint32 PropagationFlags, FProperty* PropertyToLoad)
{
	UClass* const Class = ConfigClass ? ConfigClass : GetClass();
	const FString File = GConfig ? FindFile(Class, Filename) : FString();
	if (File.IsEmpty())
	{
		return;
	}
	for (const FProperty* Property = Class->PropertyLink; Property; Property = Property->PropertyLinkNext)
	{
		if (Property->HasAnyPropertyFlags(CPF_Config) && (!PropertyToLoad || PropertyToLoad == Property))
		{
			LoadProperty(Property, this, SectionOf(Class, Property), File);
		}
	}
}

void UObject::SaveConfig(uint64 Flags, const TCHAR* Filename)
{
	UClass* const Class = GetClass();
	const FString File = GConfig && Class->HasAnyClassFlags(CLASS_Config) ? FindFile(Class, Filename) : FString();
	if (File.IsEmpty())
	{
		return;
	}
	for (const FProperty* Property = Class->PropertyLink; Property; Property = Property->PropertyLinkNext)
	{
		if (Property->HasAnyPropertyFlags(Flags & CPF_Config ? CPF_Config : Flags))
		{
			SaveProperty(Property, this, SectionOf(Class, Property), File);
		}
	}
	GConfig->Flush(false, File);
}

bool UObject::TryUpdateDefaultConfigFile(const FString& SpecificFileLocation)
{
	const FString Name = GetClass()->GetConfigName();
	if (!GConfig || (Name.IsEmpty() && SpecificFileLocation.IsEmpty()))
	{
		return false;
	}
	const FString File =
		SpecificFileLocation.IsEmpty() ? FPaths::ProjectConfigDir() / (TEXT("Default") + Name + TEXT(".ini")) : SpecificFileLocation;
	for (const FProperty* Property = GetClass()->PropertyLink; Property; Property = Property->PropertyLinkNext)
	{
		if (Property->HasAnyPropertyFlags(CPF_Config))
		{
			SaveProperty(Property, this, SectionOf(GetClass(), Property), File);
		}
	}
	return GConfig->Flush(false, File);
}
