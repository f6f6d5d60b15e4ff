#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

UFunction::UFunction(const FObjectInitializer& ObjectInitializer)
	: UStruct(ObjectInitializer)
{
}

UDelegateFunction::UDelegateFunction(const FObjectInitializer& ObjectInitializer)
	: UFunction(ObjectInitializer)
{
}

USparseDelegateFunction::USparseDelegateFunction(const FObjectInitializer& ObjectInitializer)
	: UDelegateFunction(ObjectInitializer)
{
}

void UFunction::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	Collector.AddStableReference(&static_cast<UFunction*>(InThis)->EventGraphFunction);
	UStruct::AddReferencedObjects(InThis, Collector);
}

void UFunction::Link(FArchive& Ar, bool bRelinkExistingProperties)
{
	// A function's frame holds its own parameters only, whatever it overrides.
	UStruct* const SuperFunction = GetSuperStruct();
	if (SuperFunction && bRelinkExistingProperties)
	{
		int32 End = 0;
		MinAlignment = 1;
		for (FField* Field = ChildProperties; Field; Field = Field->Next)
		{
			if (FProperty* const Property = CastField<FProperty>(Field))
			{
				Property->LinkWithoutChangingOffset(Ar);
				End = Property->SetupOffset(End);
				MinAlignment = std::max(MinAlignment, Property->GetMinAlignment());
			}
		}
		PropertiesSize = End;
		bRelinkExistingProperties = false;
	}
	Super::Link(Ar, bRelinkExistingProperties);
	if (SuperFunction)
	{
		CutSuperFromLinks();
	}
	InitializeDerivedMembers();
}

void UFunction::CutSuperFromLinks()
{
	const auto Cut = [this](FProperty*& Head, FProperty* FProperty::*Next)
	{
		for (FProperty** Link = &Head; *Link; Link = &((*Link)->*Next))
		{
			if ((*Link)->GetOwner<UObject>() != this)
			{
				*Link = nullptr;
				return;
			}
		}
	};
	Cut(PropertyLink, &FProperty::PropertyLinkNext);
	Cut(RefLink, &FProperty::NextRef);
	Cut(DestructorLink, &FProperty::DestructorLinkNext);
	Cut(PostConstructLink, &FProperty::PostConstructLinkNext);
}

void UFunction::InitializeDerivedMembers()
{
	NumParms = 0;
	ParmsSize = 0;
	ReturnValueOffset = MAX_uint16;
	FirstPropertyToInit = nullptr;
	for (FField* Field = ChildProperties; Field; Field = Field->Next)
	{
		FProperty* const Property = CastField<FProperty>(Field);
		if (!Property)
		{
			continue;
		}
		if (!Property->HasAnyPropertyFlags(CPF_Parm))
		{
			FirstPropertyToInit =
				FirstPropertyToInit || Property->HasAnyPropertyFlags(CPF_ZeroConstructor) ? FirstPropertyToInit : Property;
			continue;
		}
		++NumParms;
		ParmsSize = static_cast<uint16>(Property->GetOffset_ForUFunction() + Property->GetSize());
		if (Property->HasAnyPropertyFlags(CPF_ReturnParm))
		{
			ReturnValueOffset = static_cast<uint16>(Property->GetOffset_ForUFunction());
		}
		if (Property->HasAnyPropertyFlags(CPF_OutParm))
		{
			FunctionFlags |= FUNC_HasOutParms;
		}
	}
}

FProperty* UFunction::GetReturnProperty() const
{
	for (FField* Field = ChildProperties; Field; Field = Field->Next)
	{
		FProperty* const Property = CastField<FProperty>(Field);
		if (Property && Property->HasAnyPropertyFlags(CPF_ReturnParm))
		{
			return Property;
		}
	}
	return nullptr;
}

UClass* UFunction::GetOuterUClass() const
{
	UObject* const Outer = GetOuter();
	return Outer && Outer->IsA<UClass>() ? static_cast<UClass*>(Outer) : nullptr;
}

uint64 UFunction::GetDefaultIgnoredSignatureCompatibilityFlags()
{
	return CPF_PersistentInstance | CPF_ExportObject | CPF_InstancedReference | CPF_ContainsInstancedReference | CPF_ComputedFlags |
		CPF_ConstParm | CPF_UObjectWrapper | CPF_TObjectPtr | CPF_NativeAccessSpecifiers | CPF_AdvancedDisplay | CPF_BlueprintVisible |
		CPF_BlueprintReadOnly;
}

bool UFunction::IsSignatureCompatibleWith(const UFunction* OtherFunction) const
{
	return IsSignatureCompatibleWith(OtherFunction, GetDefaultIgnoredSignatureCompatibilityFlags());
}

bool UFunction::IsSignatureCompatibleWith(const UFunction* OtherFunction, uint64 IgnoreFlags) const
{
	if (this == OtherFunction)
	{
		return true;
	}
	const auto NextParameter = [](FField* Field)
	{
		while (Field && !(CastField<FProperty>(Field) && CastField<FProperty>(Field)->HasAnyPropertyFlags(CPF_Parm)))
		{
			Field = Field->Next;
		}
		return CastField<FProperty>(Field);
	};
	const FProperty* Mine = NextParameter(ChildProperties);
	const FProperty* Theirs = NextParameter(OtherFunction->ChildProperties);
	for (; Mine && Theirs; Mine = NextParameter(Mine->Next), Theirs = NextParameter(Theirs->Next))
	{
		const uint64 Difference = static_cast<uint64>(Mine->PropertyFlags ^ Theirs->PropertyFlags);
		if (!Mine->SameType(Theirs) || (Difference & ~IgnoreFlags) != 0)
		{
			return false;
		}
	}
	return !Mine && !Theirs;
}
