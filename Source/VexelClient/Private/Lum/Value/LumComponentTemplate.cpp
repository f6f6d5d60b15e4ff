#include "Lum/Value/LumComponentTemplate.h"

#include "Components/ActorComponent.h"
#include "Engine/Blueprint.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Engine/InheritableComponentHandler.h"
#include "Engine/SCS_Node.h"
#include "Engine/SimpleConstructionScript.h"
#include "UObject/UnrealType.h"

const USCS_Node* LumComponentTemplate::FindNode(const FProperty& Property, const UObject* Object)
{
	const bool bMayBeComponent = Object && Property.HasAnyPropertyFlags(CPF_InstancedReference) &&
		Object->HasAnyFlags(RF_ClassDefaultObject);
	const UBlueprintGeneratedClass* const Owner = bMayBeComponent ? Cast<UBlueprintGeneratedClass>(Property.GetOwnerClass()) : nullptr;
	const USimpleConstructionScript* const Script = Owner ? Owner->SimpleConstructionScript.Get() : nullptr;
	const USCS_Node* const Node = Script ? Script->FindSCSNode(Property.GetFName()) : nullptr;
	const bool bIsReached = Node && (Owner == Object->GetClass() || Object->GetClass()->FindPropertyByName(Property.GetFName()) == &Property);
	return bIsReached ? Node : nullptr;
}

UObject* LumComponentTemplate::Find(const FProperty& Property, const UObject* Object)
{
	const USCS_Node* const Node = FindNode(Property, Object);
	return Node ? Node->GetActualComponentTemplate(Cast<UBlueprintGeneratedClass>(Object->GetClass())) : nullptr;
}

bool LumComponentTemplate::IsInherited(const USCS_Node& Node, const UObject& Object)
{
	const UBlueprintGeneratedClass* const Class = Cast<UBlueprintGeneratedClass>(Object.GetClass());
	return Class && Class->SimpleConstructionScript != Node.GetSCS();
}

UObject* LumComponentTemplate::Override(const USCS_Node& Node, UBlueprintGeneratedClass& Class)
{
	UBlueprint* const Blueprint = UBlueprint::GetBlueprintFromClass(&Class);
	UInheritableComponentHandler* const Handler = Blueprint ? Blueprint->GetInheritableComponentHandler(true) : nullptr;
	if (!Handler)
	{
		return nullptr;
	}
	Handler->Modify();
	return Handler->CreateOverridenComponentTemplate(FComponentKey(&Node));
}

void LumComponentTemplate::DropNeedless(UBlueprintGeneratedClass& Class)
{
	if (UInheritableComponentHandler* const Handler = Class.GetInheritableComponentHandler())
	{
		Handler->Modify();
		Handler->ValidateTemplates();
	}
}

const UObject* LumComponentTemplate::GetDefaults(const UObject& Object)
{
	const UObject* Defaults = Object.GetArchetype();
	while (Defaults && Defaults->GetTypedOuter<UClass>())
	{
		Defaults = Defaults->GetArchetype();
	}
	return Defaults;
}
