#include "UserDefinedStructCompiler.h"

#include "BlueprintReinstancer.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Engine/UserDefinedStruct.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/StructureEditorUtils.h"
#include "PinTypeProperty.h"
#include "UObject/Package.h"
#include "UObject/PropertyConstruction.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"
#include "UObject/UnrealType.h"

namespace
{
template <class ObjectType>
TArray<ObjectType*> GetAll()
{
	TArray<UObject*> Objects;
	GetObjectsOfClass(ObjectType::StaticClass(), Objects, true, RF_ClassDefaultObject, EInternalObjectFlags::Garbage);
	TArray<ObjectType*> Result;
	for (UObject* const Object : Objects)
	{
		Result.Add(CastChecked<ObjectType>(Object));
	}
	return Result;
}

/** Visits each property of the struct itself and those inside containers. */
void VisitProperties(const UStruct& Owner, TFunctionRef<void(FProperty&)> Visit)
{
	const auto VisitOne = [&Visit](FProperty* Property)
	{
		if (Property)
		{
			Visit(*Property);
		}
	};
	for (FField* Field = Owner.ChildProperties; Field; Field = Field->Next)
	{
		VisitOne(CastField<FProperty>(Field));
		if (const FArrayProperty* const Array = CastField<FArrayProperty>(Field))
		{
			VisitOne(Array->Inner);
		}
		else if (const FSetProperty* const Set = CastField<FSetProperty>(Field))
		{
			VisitOne(Set->ElementProp);
		}
		else if (const FMapProperty* const Map = CastField<FMapProperty>(Field))
		{
			VisitOne(Map->KeyProp);
			VisitOne(Map->ValueProp);
		}
	}
}
}

FUserDefinedStructCompiler::FUserDefinedStructCompiler(UUserDefinedStruct& Struct)
{
	// Layouts of earlier rebuilds, which await their collection, have no members described.
	TArray<UUserDefinedStruct*> All = GetAll<UUserDefinedStruct>();
	All.RemoveAll([](const UUserDefinedStruct* Other)
		{ return !Other->EditorData; });
	AddWithContainers(Struct, All);
}

void FUserDefinedStructCompiler::AddWithContainers(UUserDefinedStruct& Struct, const TArray<UUserDefinedStruct*>& All)
{
	// A container that was reached before stands too early for this one: it moves behind it.
	Structs.RemoveAll([&Struct](const FRebuiltStruct& Rebuilt)
		{ return Rebuilt.Struct == &Struct; });
	Structs.Add({&Struct, nullptr});
	for (UUserDefinedStruct* const Other : All)
	{
		bool bContains = false;
		VisitProperties(*Other,
			[&Struct, &bContains](const FProperty& Property)
			{
				const FStructProperty* const Member = CastField<FStructProperty>(&Property);
				bContains = bContains || (Member && Member->Struct == &Struct);
			});
		if (bContains && Other != &Struct)
		{
			AddWithContainers(*Other, All);
		}
	}
}

bool FUserDefinedStructCompiler::UsesRebuilt(const UStruct& Owner) const
{
	bool bUses = false;
	VisitProperties(Owner,
		[this, &bUses](const FProperty& Property)
		{
			const FStructProperty* const Member = CastField<FStructProperty>(&Property);
			bUses = bUses ||
				(Member &&
					Structs.ContainsByPredicate([Member](const FRebuiltStruct& Rebuilt)
						{ return Rebuilt.Struct == Member->Struct; }));
		});
	return bUses;
}

void FUserDefinedStructCompiler::PointToOldStructs(UStruct& Owner) const
{
	VisitProperties(Owner,
		[this](FProperty& Property)
		{
			FStructProperty* const Member = CastField<FStructProperty>(&Property);
			const FRebuiltStruct* const Rebuilt = Member
				? Structs.FindByPredicate([Member](const FRebuiltStruct& Candidate)
					  { return Candidate.Struct == Member->Struct; })
				: nullptr;
			if (Rebuilt)
			{
				Member->Struct = Rebuilt->OldStruct;
			}
		});
	Owner.StaticLink(false);
}

void FUserDefinedStructCompiler::BuildMembers(UUserDefinedStruct& Struct)
{
	Struct.Status = UDSS_UpToDate;
	FField** Tail = &Struct.ChildProperties;
	for (FStructVariableDescription& Variable : FStructureEditorUtils::GetVarDesc(&Struct))
	{
		FPropertyDescription Description;
		Variable.bInvalidMember = !DescribePinType(Variable.VarName, Variable.ToPinType(), nullptr, Description);
		Description.PropertyFlags = static_cast<EPropertyFlags>(CPF_Edit | CPF_BlueprintVisible |
			(Variable.bDontEditOnInstance ? CPF_DisableEditOnInstance : CPF_None) | (Variable.bEnableSaveGame ? CPF_SaveGame : CPF_None));
		FProperty* const Property = Variable.bInvalidMember ? nullptr : ConstructPropertyFromDescription(&Struct, Description);
		if (!Property)
		{
			Struct.Status = UDSS_Error;
			continue;
		}
		Property->SetMetaData(TEXT("DisplayName"), *Variable.FriendlyName);
		Property->SetMetaData(TEXT("ToolTip"), *Variable.ToolTip);
		for (const TPair<FName, FString>& Entry : Variable.MetaData)
		{
			Property->SetMetaData(Entry.Key, *Entry.Value);
		}
		*Tail = Property;
		Tail = &Property->Next;
		*Tail = nullptr;
	}
	Struct.StaticLink(true);
	Struct.SetDefaults(
		[&Struct](uint8* Instance)
		{
			for (const FStructVariableDescription& Variable : FStructureEditorUtils::GetVarDesc(&Struct))
			{
				const FProperty* const Property =
					Variable.DefaultValue.IsEmpty() ? nullptr : FindFProperty<FProperty>(&Struct, Variable.VarName);
				if (Property)
				{
					Property->ImportText_InContainer(*Variable.DefaultValue, Instance, &Struct, PPF_None);
				}
			}
		});
}

void FUserDefinedStructCompiler::Compile()
{
	TArray<UBlueprintGeneratedClass*> Classes;
	for (UBlueprintGeneratedClass* const Class : GetAll<UBlueprintGeneratedClass>())
	{
		const UBlueprint* const Blueprint = UBlueprint::GetBlueprintFromClass(Class);
		const bool bIsInUse = Blueprint && (Blueprint->GeneratedClass.Get() == Class || Blueprint->SkeletonGeneratedClass.Get() == Class);
		TArray<UObject*> Functions;
		GetObjectsWithOuter(Class, Functions, false);
		const bool bUses = UsesRebuilt(*Class) ||
			Functions.ContainsByPredicate(
				[this](const UObject* Function)
				{ return Function->IsA<UFunction>() && UsesRebuilt(*CastChecked<UFunction>(Function)); });
		if (bIsInUse && bUses)
		{
			Classes.Add(Class);
		}
	}
	for (FRebuiltStruct& Rebuilt : Structs)
	{
		const FName OldName = MakeUniqueObjectName(
			GetTransientPackageAsObject(), UUserDefinedStruct::StaticClass(), FName(*(TEXT("STRUCT_REINST_") + Rebuilt.Struct->GetName())));
		Rebuilt.OldStruct = NewObject<UUserDefinedStruct>(GetTransientPackageAsObject(), OldName, RF_Transient);
		Rebuilt.Struct->MoveMembersTo(*Rebuilt.OldStruct);
	}
	for (const FRebuiltStruct& Rebuilt : Structs)
	{
		PointToOldStructs(*Rebuilt.OldStruct);
	}
	for (UBlueprintGeneratedClass* const Class : Classes)
	{
		for (UField* Child = Class->Children; Child; Child = Child->Next)
		{
			if (UFunction* const Function = Cast<UFunction>(Child))
			{
				PointToOldStructs(*Function);
			}
		}
		PointToOldStructs(*Class);
	}
	for (const FRebuiltStruct& Rebuilt : Structs)
	{
		BuildMembers(*Rebuilt.Struct);
		Rebuilt.Struct->MarkPackageDirty();
	}
	TArray<FString> Errors;
	TSet<UBlueprint*> Blueprints;
	for (UBlueprintGeneratedClass* const Class : Classes)
	{
		UBlueprint* const Blueprint = UBlueprint::GetBlueprintFromClass(Class);
		FBlueprintCompileReinstancer(*Blueprint, *Class).Rebuild(Errors);
		Blueprints.Add(Blueprint);
	}
	for (UBlueprint* const Blueprint : Blueprints)
	{
		FBlueprintEditorUtils::RefreshAllNodes(Blueprint);
	}
}
