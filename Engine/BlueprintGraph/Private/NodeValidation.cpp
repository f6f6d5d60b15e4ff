// What a compile finds wrong with single nodes. The rules stand together because users read them together: one mistake, one sentence.

#include "Engine/Blueprint.h"
#include "Engine/MemberReference.h"
#include "K2Node_BaseMCDelegate.h"
#include "K2Node_CallFunction.h"
#include "K2Node_ClassDynamicCast.h"
#include "K2Node_ComponentBoundEvent.h"
#include "K2Node_ConstructObjectFromClass.h"
#include "K2Node_CreateDelegate.h"
#include "K2Node_CustomEvent.h"
#include "K2Node_DynamicCast.h"
#include "K2Node_Event.h"
#include "K2Node_MacroInstance.h"
#include "K2Node_StructOperation.h"
#include "K2Node_Timeline.h"
#include "K2Node_Variable.h"
#include "K2Node_VariableSet.h"
#include "Kismet2/CompilerResultsLog.h"
#include "UObject/Class.h"
#include "UObject/UnrealType.h"

namespace
{
/** The class that a member should have stood in, as a user reads it. */
FString NameOwner(const FMemberReference& Reference, UClass* SelfClass)
{
	const UClass* const Class = Reference.GetMemberParentClass(SelfClass);
	const UBlueprint* const Blueprint = Class ? UBlueprint::GetBlueprintFromClass(Class) : nullptr;
	if (Blueprint)
	{
		return Blueprint->GetName();
	}
	return Class ? Class->GetName() : FString(TEXT("unknown"));
}

void SayMissingMember(FCompilerResultsLog& MessageLog, const TCHAR* Kind, const FMemberReference& Reference, const UK2Node& Node)
{
	const FString Owner = NameOwner(Reference, Node.GetBlueprintClassFromNode());
	MessageLog.Error(TEXT("Could not find a @@ named \"@@\" in '@@'.\nMake sure '@@' has been compiled for @@"), Kind,
		Reference.GetMemberName(), Owner, Owner, &Node);
}

/** The class of what a pin is given: of its link, or of the Blueprint itself where "self" is meant. Null while it is open. */
const UClass* GetGivenClass(const UEdGraphPin* Pin, const UK2Node& Node)
{
	const UEdGraphPin* const Linked = Pin && Pin->LinkedTo.Num() > 0 ? Pin->LinkedTo[0] : nullptr;
	if (!Linked)
	{
		return nullptr;
	}
	return Linked->PinType.PinSubCategory == UEdGraphSchema_K2::PSC_Self ? Node.GetBlueprintClassFromNode()
																		 : Cast<UClass>(Linked->PinType.PinSubCategoryObject.Get());
}
}

void UK2Node_CallFunction::ValidateNodeDuringCompilation(FCompilerResultsLog& MessageLog) const
{
	Super::ValidateNodeDuringCompilation(MessageLog);
	const UFunction* const Function = GetTargetFunction();
	if (!Function)
	{
		SayMissingMember(MessageLog, TEXT("function"), FunctionReference, *this);
		return;
	}
	const UClass* const Owner = Function->GetOwnerClass();
	const UClass* const Self = GetBlueprintClassFromNode();
	const bool bIsOwn = Owner && Self && Self->GetAuthoritativeClass()->IsChildOf(Owner->GetAuthoritativeClass());
	const UBlueprint* const OwnerBlueprint = Owner ? UBlueprint::GetBlueprintFromClass(Owner) : nullptr;
	if (Function->HasAnyFunctionFlags(FUNC_Private) && OwnerBlueprint && OwnerBlueprint != GetBlueprint())
	{
		MessageLog.Error(
			TEXT("Function @@ is private and cannot be called outside of @@ by @@"), Function->GetDisplayNameText(), Owner, this);
	}
	else if (Function->HasAnyFunctionFlags(FUNC_Protected) && OwnerBlueprint && !bIsOwn)
	{
		MessageLog.Error(TEXT("Function @@ is protected and can only be called by @@ and its children, not by @@"),
			Function->GetDisplayNameText(), Owner, this);
	}
	if (Function->HasMetaData(TEXT("DeprecatedFunction")))
	{
		const FString Advice = Function->GetMetaData(TEXT("DeprecationMessage"));
		MessageLog.Warning(TEXT("@@ - Function '@@' is deprecated. @@"), this, Function->GetDisplayNameText(), Advice);
	}
}

void UK2Node_Variable::ValidateNodeDuringCompilation(FCompilerResultsLog& MessageLog) const
{
	Super::ValidateNodeDuringCompilation(MessageLog);
	FEdGraphPinType Type;
	if (GetVariableType(Type))
	{
		return;
	}
	if (VariableReference.IsLocalScope())
	{
		MessageLog.Error(TEXT("Unable to find local variable with name '@@' for @@"), GetVarName(), this);
		return;
	}
	SayMissingMember(MessageLog, TEXT("variable"), VariableReference, *this);
}

void UK2Node_VariableSet::ValidateNodeDuringCompilation(FCompilerResultsLog& MessageLog) const
{
	Super::ValidateNodeDuringCompilation(MessageLog);
	const FProperty* const Property = GetPropertyForVariable();
	const UClass* const Owner = Property ? Property->GetOwnerClass() : nullptr;
	const bool bIsOwn = Owner && UBlueprint::GetBlueprintFromClass(Owner) == GetBlueprint();
	if (Owner && !bIsOwn && Property->HasAnyPropertyFlags(CPF_BlueprintReadOnly))
	{
		MessageLog.Error(TEXT("@@ is not blueprint writable. @@"), GetVarName(), this);
	}
}

void UK2Node_Event::ValidateNodeDuringCompilation(FCompilerResultsLog& MessageLog) const
{
	Super::ValidateNodeDuringCompilation(MessageLog);
	if (!EventReference.GetMemberName().IsNone() && !FindEventSignatureFunction())
	{
		MessageLog.Error(TEXT("Missing Event '@@' for @@"), EventReference.GetMemberName(), this);
	}
}

void UK2Node_ComponentBoundEvent::ValidateNodeDuringCompilation(FCompilerResultsLog& MessageLog) const
{
	const UClass* const Self = GetBlueprintClassFromNode();
	if (!Self || !FindFProperty<FObjectProperty>(Self, ComponentPropertyName))
	{
		MessageLog.Error(TEXT("@@ does not have a valid matching component: there is no '@@'!"), this, ComponentPropertyName);
		return;
	}
	if (!GetTargetDelegateProperty())
	{
		MessageLog.Error(TEXT("@@ is bound to the event '@@', which the component does not have"), this, DelegatePropertyName);
	}
}

void UK2Node_BaseMCDelegate::ValidateNodeDuringCompilation(FCompilerResultsLog& MessageLog) const
{
	Super::ValidateNodeDuringCompilation(MessageLog);
	if (!GetProperty())
	{
		SayMissingMember(MessageLog, TEXT("event-dispatcher"), DelegateReference, *this);
	}
}

void UK2Node_CreateDelegate::ValidateNodeDuringCompilation(FCompilerResultsLog& MessageLog) const
{
	Super::ValidateNodeDuringCompilation(MessageLog);
	const UEdGraphPin* const Out = GetDelegateOutPin();
	if (!Out || Out->LinkedTo.IsEmpty())
	{
		MessageLog.Error(TEXT("Unable to determine expected signature - is the delegate pin connected? @@"), this);
		return;
	}
	if (SelectedFunctionName.IsNone())
	{
		MessageLog.Error(TEXT("Event is missing a function/event name: choose one for @@"), this);
		return;
	}
	const UClass* const Scope = GetScopeClass();
	const UFunction* const Function = Scope ? Scope->FindFunctionByName(SelectedFunctionName) : nullptr;
	const UFunction* const Signature = FMemberReference::ResolveSimpleMemberReference<UFunction>(
		Out->PinType.PinSubCategoryMemberReference, GetBlueprintClassFromNode());
	if (!Function)
	{
		MessageLog.Error(
			TEXT("The function/event '@@' is not found in @@ - has it been renamed or removed? @@"), SelectedFunctionName, Scope, this);
	}
	else if (Signature && !Signature->IsSignatureCompatibleWith(Function))
	{
		MessageLog.Error(
			TEXT("The function/event '@@' does not match the necessary signature - has the delegate or function/event changed? @@"),
			SelectedFunctionName, this);
	}
}

void UK2Node_DynamicCast::ValidateNodeDuringCompilation(FCompilerResultsLog& MessageLog) const
{
	Super::ValidateNodeDuringCompilation(MessageLog);
	if (!TargetType)
	{
		MessageLog.Error(TEXT("Bad cast node @@: the class that it casts to does not exist"), this);
		return;
	}
	const UEdGraphPin* const Source = GetCastSourcePin();
	const UClass* Given = GetGivenClass(Source, *this);
	const UClass* const Target = TargetType->GetAuthoritativeClass();
	if (!Given || Target->HasAnyClassFlags(CLASS_Interface) || Given->HasAnyClassFlags(CLASS_Interface))
	{
		return;
	}
	Given = Given->GetAuthoritativeClass();
	if (Given->IsChildOf(Target))
	{
		MessageLog.Note(TEXT("'@@' is already a '@@', you don't need @@."), Given, Target, this);
	}
	else if (!Target->IsChildOf(Given))
	{
		MessageLog.Warning(TEXT("'@@' does not inherit from '@@' (@@ would always fail)."), Target, Given, this);
	}
}

void UK2Node_ConstructObjectFromClass::ValidateNodeDuringCompilation(FCompilerResultsLog& MessageLog) const
{
	Super::ValidateNodeDuringCompilation(MessageLog);
	const UEdGraphPin* const ClassPin = GetClassPin();
	const UClass* const Class = GetClassToSpawn();
	if (ClassPin && ClassPin->LinkedTo.IsEmpty() && !Class)
	{
		MessageLog.Error(TEXT("Spawn node @@ must have a @@ specified."), this, ClassPin);
	}
	else if (ClassPin && ClassPin->LinkedTo.IsEmpty() && Class->HasAnyClassFlags(CLASS_Abstract))
	{
		MessageLog.Error(TEXT("Cannot construct objects of the abstract class @@ in @@"), Class, this);
	}
}

void UK2Node_MacroInstance::ValidateNodeDuringCompilation(FCompilerResultsLog& MessageLog) const
{
	Super::ValidateNodeDuringCompilation(MessageLog);
	if (!GetMacroGraph())
	{
		MessageLog.Error(TEXT("Macro node @@ is pointing at an invalid macro graph."), this);
	}
}

void UK2Node_StructOperation::ValidateNodeDuringCompilation(FCompilerResultsLog& MessageLog) const
{
	Super::ValidateNodeDuringCompilation(MessageLog);
	if (!StructType)
	{
		MessageLog.Error(TEXT("Unknown structure for @@"), this);
	}
}

void UK2Node_Timeline::ValidateNodeDuringCompilation(FCompilerResultsLog& MessageLog) const
{
	Super::ValidateNodeDuringCompilation(MessageLog);
	if (!GetTemplate())
	{
		MessageLog.Error(TEXT("The timeline '@@' of @@ does not exist in the Blueprint"), TimelineName, this);
	}
}
