#pragma once

#include "CoreMinimal.h"

/** Spaces are allowed: "Open Door" is a function like another. */
#define UE_BLUEPRINT_INVALID_NAME_CHARACTERS TEXT("\"',/.:|&!~\n\r\t@#(){}[]=;^%$`")

class UBlueprint;
class UEdGraphNode;
class UStruct;

/** What a validator says of a name. */
enum class EValidatorResult
{
	Ok,
	AlreadyInUse,
	EmptyName,
	TooLong,
	/** Another name of the same function. */
	LocallyInUse,
	ContainsInvalidCharacters,
	/** The name that the thing has already. */
	ExistingName
};

/** Says whether a name may be given. */
class UNREALED_API INameValidatorInterface
{
public:
	virtual ~INameValidatorInterface() = default;

	/** bOriginal asks of a name that the thing has already, which is allowed then. */
	virtual EValidatorResult IsValid(const FName& Name, bool bOriginal = false) = 0;
	virtual EValidatorResult IsValid(const FString& Name, bool bOriginal = false) = 0;
	/** Appends a number until the name may be given; answers what it said of the name as it came. */
	EValidatorResult FindValidString(FString& InOutName);

	static FText GetErrorText(const FString& Name, EValidatorResult ErrorCode);
	static FString GetErrorString(const FString& Name, EValidatorResult ErrorCode) { return GetErrorText(Name, ErrorCode).ToString(); }
	/** Whether no object directly in the Blueprint has the name. */
	static bool BlueprintObjectNameIsValid(const FName& Name, const UBlueprint* Blueprint);
};

/**
 * Names of a Blueprint's members: variables, functions, graphs, events, components and timelines, its parents' included, and of
 * the local variables and parameters of the scope. Takes the names once, when it is made.
 */
class UNREALED_API FKismetNameValidator : public INameValidatorInterface
{
public:
	explicit FKismetNameValidator(const UBlueprint* Blueprint, FName InExistingName = NAME_None, UStruct* InScope = nullptr);

	virtual EValidatorResult IsValid(const FName& Name, bool bOriginal = false) override;
	virtual EValidatorResult IsValid(const FString& Name, bool bOriginal = false) override;

	/** Characters. */
	static int32 GetMaximumNameLength() { return 100; }

private:
	const UBlueprint* BlueprintObject;
	FName ExistingName;
	TSet<FName> Names;
	TSet<FName> LocalNames;
};

/** Names that are not in a given set. */
class UNREALED_API FStringSetNameValidator : public INameValidatorInterface
{
public:
	explicit FStringSetNameValidator(const FString& InExistingName)
		: ExistingName(InExistingName)
	{
	}

	virtual EValidatorResult IsValid(const FName& Name, bool bOriginal = false) override { return IsValid(Name.ToString(), bOriginal); }
	virtual EValidatorResult IsValid(const FString& Name, bool bOriginal = false) override;

protected:
	TSet<FString> Names;
	FString ExistingName;
};

/** Gives every name the same answer. */
class FDummyNameValidator : public INameValidatorInterface
{
public:
	explicit FDummyNameValidator(EValidatorResult InReturnValue)
		: ReturnValue(InReturnValue)
	{
	}
	virtual EValidatorResult IsValid(const FString& Name, bool bOriginal = false) override { return ReturnValue; }
	virtual EValidatorResult IsValid(const FName& Name, bool bOriginal = false) override { return ReturnValue; }

private:
	EValidatorResult ReturnValue;
};

/** Makes the validator of what is being renamed. */
class UNREALED_API FNameValidatorFactory
{
public:
	/** Of a custom event, a timeline or a collapsed graph; null for a node that has no name to change. */
	static TSharedPtr<INameValidatorInterface> MakeValidator(UEdGraphNode* Node);
};
