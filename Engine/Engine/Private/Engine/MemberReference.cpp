#include "Engine/MemberReference.h"

#include "Engine/Blueprint.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

UClass* FMemberReference::GetNewestClass(UClass* Class)
{
	const UBlueprint* const Blueprint = UBlueprint::GetBlueprintFromClass(Class);
	return Blueprint && Blueprint->SkeletonGeneratedClass ? Blueprint->SkeletonGeneratedClass.Get() : Class;
}

UClass* FMemberReference::FindOwnerClass(const UFunction* Function)
{
	return Function ? Function->GetOwnerClass() : nullptr;
}

UClass* FMemberReference::FindOwnerClass(const FProperty* Property)
{
	return Property ? Property->GetOwnerClass() : nullptr;
}

UPackage* FMemberReference::FindOwnerOfSignature(const UFunction* Function)
{
	return Function && !Function->GetOwnerClass() ? Function->GetPackage() : nullptr;
}

UClass* FMemberReference::GetClassToUse(const UBlueprint* Blueprint)
{
	if (!Blueprint)
	{
		return nullptr;
	}
	return Blueprint->SkeletonGeneratedClass ? Blueprint->SkeletonGeneratedClass.Get() : Blueprint->GeneratedClass.Get();
}

bool FMemberReference::IsSelfMember(const UClass* OwnerClass, const UClass* SelfScope)
{
	if (!OwnerClass || !SelfScope)
	{
		return false;
	}
	const UBlueprint* const Blueprint = UBlueprint::GetBlueprintFromClass(OwnerClass);
	const bool bSameMaker = OwnerClass->ClassGeneratedBy && SelfScope->ClassGeneratedBy == OwnerClass->ClassGeneratedBy;
	return SelfScope->IsChildOf(OwnerClass) || bSameMaker ||
		(Blueprint && Blueprint->GeneratedClass && SelfScope->IsChildOf(Blueprint->GeneratedClass.Get()));
}

void FMemberReference::SetFromOwner(const UClass* OwnerClass, bool bIsConsideredSelfContext, UPackage* SignaturePackage)
{
	bSelfContext = bIsConsideredSelfContext;
	bWasDeprecated = false;
	MemberScope.Empty();
	const UBlueprint* const Blueprint = UBlueprint::GetBlueprintFromClass(OwnerClass);
	if (Blueprint && Blueprint->GeneratedClass)
	{
		MemberParent = Blueprint->GeneratedClass.Get();
	}
	else if (OwnerClass)
	{
		MemberParent = const_cast<UClass*>(OwnerClass);
	}
	else
	{
		MemberParent = SignaturePackage;
	}
}

void FMemberReference::FindGuid(bool bFunction)
{
	const UClass* const OwnerClass = GetMemberParentClass();
	if (bFunction)
	{
		UBlueprint::GetFunctionGuidFromClassByFieldName(OwnerClass, MemberName, MemberGuid);
	}
	else
	{
		UBlueprint::GetVariableGuidFromClassByFieldName(OwnerClass, MemberName, MemberGuid);
	}
	// A self reference keeps no class: the node may be pasted into another Blueprint.
	if (bSelfContext)
	{
		MemberParent = nullptr;
	}
}

void FMemberReference::SetExternalMember(FName InMemberName, TSubclassOf<UObject> InMemberParentClass)
{
	*this = FMemberReference();
	MemberName = InMemberName;
	MemberParent = InMemberParentClass.Get();
}

void FMemberReference::SetExternalMember(FName InMemberName, TSubclassOf<UObject> InMemberParentClass, const FGuid& InMemberGuid)
{
	SetExternalMember(InMemberName, InMemberParentClass);
	MemberGuid = InMemberGuid;
}

void FMemberReference::SetExternalDelegateMember(FName InMemberName)
{
	SetExternalMember(InMemberName, nullptr);
}

void FMemberReference::SetGlobalField(FName InFieldName, UPackage* InParentPackage)
{
	*this = FMemberReference();
	MemberName = InFieldName;
	MemberParent = InParentPackage;
}

void FMemberReference::SetSelfMember(FName InMemberName)
{
	*this = FMemberReference();
	MemberName = InMemberName;
	bSelfContext = true;
}

void FMemberReference::SetSelfMember(FName InMemberName, FGuid& InMemberGuid)
{
	SetSelfMember(InMemberName);
	MemberGuid = InMemberGuid;
}

void FMemberReference::SetLocalMember(FName InMemberName, UStruct* InScope, const FGuid InMemberGuid)
{
	SetLocalMember(InMemberName, InScope->GetName(), InMemberGuid);
}

void FMemberReference::SetLocalMember(FName InMemberName, FString InScopeName, const FGuid InMemberGuid)
{
	*this = FMemberReference();
	MemberName = InMemberName;
	MemberScope = MoveTemp(InScopeName);
	MemberGuid = InMemberGuid;
	bSelfContext = false;
}

void FMemberReference::SetDirect(
	const FName InFieldName, const FGuid InMemberGuid, TSubclassOf<UObject> InMemberParentClass, bool bIsConsideredSelfContext)
{
	*this = FMemberReference();
	MemberName = InFieldName;
	MemberGuid = InMemberGuid;
	bSelfContext = bIsConsideredSelfContext;
	MemberParent = InMemberParentClass.Get();
}

void FMemberReference::InvalidateScope()
{
	if (IsSelfContext())
	{
		MemberParent = nullptr;
	}
	else if (IsLocalScope())
	{
		// Another function has no such variable; the name alone remains.
		MemberGuid.Invalidate();
	}
}

UPackage* FMemberReference::GetMemberParentPackage() const
{
	if (UPackage* const Package = Cast<UPackage>(MemberParent.Get()))
	{
		return Package;
	}
	return MemberParent ? MemberParent->GetOutermost() : nullptr;
}

UStruct* FMemberReference::GetMemberScope(const UClass* InMemberParentClass) const
{
	return InMemberParentClass ? FindUField<UFunction>(InMemberParentClass, FName(*MemberScope)) : nullptr;
}

UClass* FMemberReference::GetScope(UClass* SelfScope) const
{
	return bSelfContext || IsLocalScope() ? SelfScope : GetMemberParentClass();
}

UClass* FMemberReference::GetMemberParentClass(UClass* SelfScope) const
{
	return bSelfContext ? SelfScope : GetMemberParentClass();
}

UFunction* FMemberReference::ResolveFunction(UClass* SelfScope) const
{
	if (UPackage* const Package = Cast<UPackage>(MemberParent.Get()))
	{
		return FindObject<UFunction>(Package, *MemberName.ToString());
	}
	UClass* const Scope = GetScope(SelfScope);
	if (!Scope)
	{
		return nullptr;
	}
	UClass* const Newest = GetNewestClass(Scope);
	if (MemberGuid.IsValid())
	{
		const FName CurrentName = UBlueprint::GetFunctionNameFromClassByGuid(Newest, MemberGuid);
		if (!CurrentName.IsNone())
		{
			MemberName = CurrentName;
		}
	}
	UFunction* const Function = Newest->FindFunctionByName(MemberName);
	return Function || Newest == Scope ? Function : Scope->FindFunctionByName(MemberName);
}

FProperty* FMemberReference::ResolveProperty(UClass* SelfScope) const
{
	UClass* const Scope = GetScope(SelfScope);
	if (!Scope)
	{
		return nullptr;
	}
	UClass* const Newest = GetNewestClass(Scope);
	if (IsLocalScope())
	{
		const UStruct* const Function = GetMemberScope(Newest);
		return Function ? FindFProperty<FProperty>(Function, MemberName) : nullptr;
	}
	if (MemberGuid.IsValid())
	{
		const FName CurrentName = UBlueprint::GetVariableNameFromClassByGuid(Newest, MemberGuid);
		if (!CurrentName.IsNone())
		{
			MemberName = CurrentName;
		}
	}
	FProperty* const Property = FindFProperty<FProperty>(Newest, MemberName);
	return Property || Newest == Scope ? Property : FindFProperty<FProperty>(Scope, MemberName);
}
