#include "BlueprintNodeSignature.h"

#include "UObject/Class.h"

FBlueprintNodeSignature::FBlueprintNodeSignature(const UClass* NodeClass)
{
	AddSubObject(NodeClass);
}

void FBlueprintNodeSignature::AddSubObject(const UObject* SignatureObj)
{
	if (SignatureObj)
	{
		AddNamedValue(SignatureObj->GetClass()->GetFName(), SignatureObj->GetPathName());
	}
}

void FBlueprintNodeSignature::AddNamedValue(FName SignatureKey, const FString& Value)
{
	if (!Value.IsEmpty())
	{
		Signature += FString::Printf(TEXT("%s=%s;"), *SignatureKey.ToString(), *Value);
	}
}
