#pragma once

#include "CoreMinimal.h"
#include "EdGraph/EdGraphPin.h"
#include "Templates/Casts.h"
#include "UObject/Class.h"
#include "UObject/ObjectMacros.h"
#include "UObject/UnrealType.h"

#include "MemberReference.generated.h"

/**
 * A function, event, variable or dispatcher that a node names, in a form that survives renames: by id where the member is
 * a Blueprint's, by class and name where it is native.
 */
USTRUCT()
struct FMemberReference
{
	GENERATED_BODY()

protected:
	/**
	 * Class that declares the member, or the package of a signature; null for a member of the Blueprint itself and for a local variable.
	 */
	UPROPERTY()
	mutable TObjectPtr<UObject> MemberParent = nullptr;

	/** Function whose local variable this is. */
	UPROPERTY()
	mutable FString MemberScope;

	UPROPERTY()
	mutable FName MemberName;

	UPROPERTY()
	mutable FGuid MemberGuid;

	UPROPERTY()
	mutable bool bSelfContext = false;

	UPROPERTY()
	mutable bool bWasDeprecated = false;

public:
	/** Refers to a member of InClass, as a Blueprint-declared class's member by its id where it has one. */
	template <class TFieldType>
	void SetFromField(const TFieldType* InField, const bool bIsConsideredSelfContext, const UClass* OwnerClass = nullptr)
	{
		SetFromOwner(OwnerClass ? OwnerClass : FindOwnerClass(InField), bIsConsideredSelfContext, FindOwnerOfSignature(InField));
		MemberName = InField->GetFName();
		MemberGuid.Invalidate();
		FindGuid(IsFunction(InField));
	}

	/** The member is a self member when the two classes are of one Blueprint or of one line. */
	template <class TFieldType>
	void SetFromField(const TFieldType* InField, UClass* SelfScope)
	{
		SetFromField<TFieldType>(InField, IsSelfMember(FindOwnerClass(InField), SelfScope));
	}

	ENGINE_API void SetExternalMember(FName InMemberName, TSubclassOf<class UObject> InMemberParentClass);
	ENGINE_API void SetExternalMember(FName InMemberName, TSubclassOf<class UObject> InMemberParentClass, const FGuid& InMemberGuid);
	/** A delegate signature that belongs to a package. */
	ENGINE_API void SetExternalDelegateMember(FName InMemberName);
	ENGINE_API void SetGlobalField(FName InFieldName, UPackage* InParentPackage);
	ENGINE_API void SetSelfMember(FName InMemberName);
	ENGINE_API void SetSelfMember(FName InMemberName, FGuid& InMemberGuid);
	ENGINE_API void SetLocalMember(FName InMemberName, UStruct* InScope, const FGuid InMemberGuid);
	ENGINE_API void SetLocalMember(FName InMemberName, FString InScopeName, const FGuid InMemberGuid);
	ENGINE_API void SetDirect(
		const FName InFieldName, const FGuid InMemberGuid, TSubclassOf<class UObject> InMemberParentClass, bool bIsConsideredSelfContext);
	/** Turns a reference that names one of SelfScope's own members into a self reference, or back. */
	ENGINE_API void InvalidateScope();

	FName GetMemberName() const { return MemberName; }
	FGuid GetMemberGuid() const { return MemberGuid; }
	UClass* GetMemberParentClass() const { return Cast<UClass>(MemberParent.Get()); }
	ENGINE_API UPackage* GetMemberParentPackage() const;
	FString GetMemberScopeName() const { return MemberScope; }
	ENGINE_API UStruct* GetMemberScope(const UClass* InMemberParentClass) const;
	bool IsSelfContext() const { return bSelfContext; }
	bool IsLocalScope() const { return !MemberScope.IsEmpty(); }
	bool IsSparseClassData(const UClass* OwningClass) const { return false; }
	/** The class that knows what a Blueprint's class has since it was compiled: the skeleton class, while there is one. */
	static ENGINE_API UClass* GetNewestClass(UClass* Class);
	/** Class that the member is looked for in. */
	ENGINE_API UClass* GetScope(UClass* SelfScope) const;
	/** The owner's class as it now stands: a Blueprint's skeleton class while there is one. */
	ENGINE_API UClass* GetMemberParentClass(UClass* SelfScope) const;

	bool operator==(const FMemberReference& Other) const
	{
		return bSelfContext == Other.bSelfContext && MemberParent == Other.MemberParent && MemberName == Other.MemberName &&
			MemberGuid == Other.MemberGuid && MemberScope == Other.MemberScope;
	}
	bool IsSameReference(const FMemberReference& Other) const { return *this == Other; }

	/**
	 * Finds the member, following a rename by its id, which this reference then takes over. SelfScope is the class of the
	 * Blueprint that holds the reference. Null when there is no such member.
	 */
	template <class TFieldType>
	TFieldType* ResolveMember(
		UClass* SelfScope = nullptr, const bool bAlwaysFollowRedirects = false, const bool bIsUnknownAllowed = false) const
	{
		if constexpr (std::is_base_of_v<UFunction, TFieldType> || std::is_same_v<UFunction, TFieldType>)
		{
			return static_cast<TFieldType*>(ResolveFunction(SelfScope));
		}
		else
		{
			return CastField<TFieldType>(ResolveProperty(SelfScope));
		}
	}

	template <class TFieldType>
	TFieldType* ResolveMember(class UBlueprint* SelfScope) const
	{
		return ResolveMember<TFieldType>(GetClassToUse(SelfScope));
	}

	/** Fills the simple form that pin types keep. */
	template <class TFieldType>
	static void FillSimpleMemberReference(const TFieldType* InField, FSimpleMemberReference& OutReference)
	{
		OutReference.Reset();
		if (InField)
		{
			FMemberReference Full;
			Full.SetFromField<TFieldType>(InField, false);
			OutReference.MemberName = Full.MemberName;
			OutReference.MemberParent = Full.MemberParent;
			OutReference.MemberGuid = Full.MemberGuid;
		}
	}

	template <class TFieldType>
	static TFieldType* ResolveSimpleMemberReference(const FSimpleMemberReference& Reference, UClass* SelfScope = nullptr)
	{
		FMemberReference Full;
		Full.MemberName = Reference.MemberName;
		Full.MemberParent = Reference.MemberParent;
		Full.MemberGuid = Reference.MemberGuid;
		return Full.ResolveMember<TFieldType>(SelfScope);
	}

private:
	ENGINE_API UFunction* ResolveFunction(UClass* SelfScope) const;
	ENGINE_API FProperty* ResolveProperty(UClass* SelfScope) const;
	ENGINE_API void SetFromOwner(const UClass* OwnerClass, bool bIsConsideredSelfContext, UPackage* SignaturePackage);
	ENGINE_API void FindGuid(bool bFunction);
	static ENGINE_API bool IsSelfMember(const UClass* OwnerClass, const UClass* SelfScope);
	static ENGINE_API UClass* GetClassToUse(const class UBlueprint* Blueprint);

	static ENGINE_API UClass* FindOwnerClass(const UFunction* Function);
	static ENGINE_API UClass* FindOwnerClass(const FProperty* Property);
	static ENGINE_API UPackage* FindOwnerOfSignature(const UFunction* Function);
	static UPackage* FindOwnerOfSignature(const FProperty* Property) { return nullptr; }
	static constexpr bool IsFunction(const UFunction*) { return true; }
	static constexpr bool IsFunction(const FProperty*) { return false; }
};
