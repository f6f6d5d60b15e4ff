#include "Lum/Value/LumObjectOwner.h"

#include "Lum/LumErrors.h"
#include "Lum/Value/LumComponentTemplate.h"
#include "Lum/Value/LumDefaultPropagation.h"
#include "Lum/Value/LumEditNotice.h"

#include "Components/ActorComponent.h"
#include "Engine/Blueprint.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Engine/SCS_Node.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "UObject/Class.h"
#include "UObject/Object.h"
#include "UObject/UnrealType.h"

namespace
{
/** Why a user of the editor could not set the member of the object; null where one could. */
const TCHAR* FindObstacle(const UObject& Object, const FProperty& Member)
{
	const bool bForGraphs = Member.HasAnyPropertyFlags(CPF_BlueprintVisible) && !Member.HasAnyPropertyFlags(CPF_BlueprintReadOnly);
	if (!Member.HasAnyPropertyFlags(CPF_Edit) && !bForGraphs)
	{
		return TEXT("only native code sets it");
	}
	if (Object.IsTemplate() && Member.HasAnyPropertyFlags(CPF_DisableEditOnTemplate))
	{
		return TEXT("it is set on instances, not on defaults");
	}
	if (!Object.IsTemplate() && Member.HasAnyPropertyFlags(CPF_Edit) && Member.HasAnyPropertyFlags(CPF_DisableEditOnInstance))
	{
		return TEXT("it is set on defaults, not on instances");
	}
	return nullptr;
}

/** The Blueprint whose defaults the object belongs to; null for an object that is no default. */
UBlueprint* FindBlueprintOfDefault(const UObject& Object)
{
	for (const UObject* Outer = Object.IsTemplate() ? &Object : nullptr; Outer; Outer = Outer->GetOuter())
	{
		const UClass* const Class = Outer->HasAnyFlags(RF_ClassDefaultObject) ? Outer->GetClass() : Cast<UClass>(Outer);
		if (Class)
		{
			return UBlueprint::GetBlueprintFromClass(Class);
		}
	}
	return nullptr;
}
}

FLumObjectOwner::FLumObjectOwner(UObject& Object, const TSharedPtr<const FLumValuePlace>& InWithin)
	: Within(InWithin)
{
	const FLumObjectOwner* const Outer = GetOuterOwner();
	const UObject* const OuterObject = Outer ? Outer->GetObject() : nullptr;
	const USCS_Node* const Node = OuterObject ? LumComponentTemplate::FindNode(Within->GetProperty(), OuterObject) : nullptr;
	if (Node && LumComponentTemplate::IsInherited(*Node, *OuterObject))
	{
		WeakNode = Node;
	}
	bOfInherited = WeakNode.IsValid() || (Outer && Outer->bOfInherited);
	if (!bOfInherited)
	{
		WeakObject = &Object;
	}
}

FLumObjectOwner* FLumObjectOwner::GetOuterOwner() const
{
	return Within ? Within->GetOwner()->AsObjectOwner() : nullptr;
}

UBlueprintGeneratedClass* FLumObjectOwner::GetClassOfComponent() const
{
	const UObject* const DefaultObject = GetOuterOwner()->GetObject();
	return DefaultObject ? Cast<UBlueprintGeneratedClass>(DefaultObject->GetClass()) : nullptr;
}

UObject* FLumObjectOwner::GetObject() const
{
	if (!bOfInherited)
	{
		return WeakObject.Get();
	}
	if (!GetOuterOwner()->bOfInherited)
	{
		const USCS_Node* const Node = WeakNode.Get();
		UBlueprintGeneratedClass* const Class = GetClassOfComponent();
		return Node && Class ? Node->GetActualComponentTemplate(Class) : nullptr;
	}
	const void* const Reference = Within->Resolve();
	return Reference ? CastFieldChecked<FObjectPropertyBase>(&Within->GetProperty())->GetObjectPropertyValue(Reference) : nullptr;
}

UObject* FLumObjectOwner::GetReferrer() const
{
	// What will be written is this Blueprint's; what there is may be private to the parent's package.
	return IsInherited() ? GetOuterOwner()->GetReferrer() : GetObject();
}

bool FLumObjectOwner::IsInherited() const
{
	if (!bOfInherited || GetOuterOwner()->bOfInherited)
	{
		return bOfInherited && GetOuterOwner()->IsInherited();
	}
	const UObject* const Template = GetObject();
	const UBlueprintGeneratedClass* const Class = GetClassOfComponent();
	return Template && Class && !Template->IsIn(Class);
}

TVexelExpected<void> FLumObjectOwner::TakeOver()
{
	if (!IsInherited())
	{
		return {};
	}
	if (GetOuterOwner()->bOfInherited)
	{
		return GetOuterOwner()->TakeOver();
	}
	const USCS_Node* const Node = WeakNode.Get();
	UBlueprintGeneratedClass* const Class = GetClassOfComponent();
	if (!Node || !Class || !LumComponentTemplate::Override(*Node, *Class))
	{
		return VEXEL_ERROR(FLumError_Import, "'%s' cannot be overridden", *Within->GetProperty().GetName());
	}
	return {};
}

void FLumObjectOwner::GiveBackIfSame()
{
	if (bOfInherited && GetOuterOwner()->bOfInherited)
	{
		GetOuterOwner()->GiveBackIfSame();
		return;
	}
	UBlueprintGeneratedClass* const Class = bOfInherited ? GetClassOfComponent() : nullptr;
	if (Class)
	{
		LumComponentTemplate::DropNeedless(*Class);
	}
}

TVexelExpected<void> FLumObjectOwner::CheckWritable(const FLumValuePlace& Place) const
{
	const UObject* const Object = GetObject();
	if (!Object)
	{
		return VEXEL_ERROR(FLumError_Import, "Invalid object");
	}
	TArray<FProperty*> Members;
	Place.AppendMembers(Members);
	const TCHAR* Obstacle = FindObstacle(*Object, *Members[0]);
	for (int32 Index = 0; Index < Members.Num() && !Obstacle; ++Index)
	{
		Obstacle = Members[Index]->HasAnyPropertyFlags(CPF_EditConst) ? TEXT("only native code sets it") : nullptr;
	}
	if (!Obstacle && !(Object->CanEditChange(Members[0]) && Object->CanEditChange(Members.Last())))
	{
		Obstacle = TEXT("the object does not allow it");
	}
	if (Obstacle)
	{
		return VEXEL_ERROR(FLumError_Import, "Property '%s' of '%s' cannot be edited: %s", *Members.Last()->GetName(), *Object->GetName(),
			Obstacle);
	}
	return {};
}

void FLumObjectOwner::ForEachObject(
	TArray<FProperty*> Members, TFunctionRef<void(UObject& Object, const TArray<FProperty*>& Members)> Tell) const
{
	if (UObject* const Object = GetObject())
	{
		Tell(*Object, Members);
	}
	if (const FLumObjectOwner* const Outer = GetOuterOwner())
	{
		TArray<FProperty*> OuterMembers;
		Within->AppendMembers(OuterMembers);
		OuterMembers.Append(Members);
		Outer->ForEachObject(MoveTemp(OuterMembers), Tell);
	}
}

TVexelExpected<void> FLumObjectOwner::OnBegin(const FChange& Change)
{
	VEXEL_TRY_VOID(TakeOver());
	TArray<FProperty*> Members;
	Change.Place.AppendMembers(Members);
	ForEachObject(MoveTemp(Members), [](UObject& Object, const TArray<FProperty*>& ObjectMembers)
		{ LumEditNotice::TellBefore(Object, ObjectMembers); });

	const UObject* const Object = GetObject();
	const FLumValuePlace& Stable = Change.Place.GetStablePlace();
	const void* const Value = Object && Object->IsTemplate() ? Stable.Resolve() : nullptr;
	OldDefault = Value ? MakeUnique<FLumTemporaryValue>(Stable.GetProperty(), Value) : nullptr;
	return {};
}

TVexelExpected<void> FLumObjectOwner::OnEnd(const FChange& Change)
{
	UObject* const Object = GetObject();
	if (!Object)
	{
		return VEXEL_ERROR(FLumError_Import, "Invalid object");
	}
	if (OldDefault)
	{
		LumDefaultPropagation::Propagate(*Object, Change.Place.GetStablePlace(), OldDefault->Get(), Change.Type);
		OldDefault.Reset();
	}
	TArray<FProperty*> Members;
	Change.Place.AppendMembers(Members);
	ForEachObject(MoveTemp(Members), [&Change](UObject& Edited, const TArray<FProperty*>& EditedMembers)
		{ LumEditNotice::TellAfter(Edited, EditedMembers, Change.Type); });
	if (UBlueprint* const Blueprint = FindBlueprintOfDefault(*Object))
	{
		FBlueprintEditorUtils::MarkBlueprintAsModified(Blueprint);
	}
	GiveBackIfSame();
	return {};
}
