#include "ClassMembers.h"

#include "UObject/Class.h"
#include "UObject/UnrealType.h"

namespace
{
FString Describe(const FProperty& Property)
{
	FString Inner;
	const FString Type = Property.GetCPPType(&Inner, 0);
	const FMulticastDelegateProperty* const Dispatcher = CastField<FMulticastDelegateProperty>(&Property);
	const FString Signature = Dispatcher ? GetNameSafe(Dispatcher->SignatureFunction) : FString();
	return FString::Printf(TEXT("%s%s %s %llx"), *Type, *Inner, *Signature, static_cast<uint64>(Property.PropertyFlags));
}

bool AreSame(const TMap<FName, FString>& A, const TMap<FName, FString>& B)
{
	for (const TPair<FName, FString>& Member : A)
	{
		const FString* const Other = B.Find(Member.Key);
		if (!Other || !Other->Equals(Member.Value, ESearchCase::CaseSensitive))
		{
			return false;
		}
	}
	return A.Num() == B.Num();
}
}

FClassMembers FClassMembers::Of(const UClass* Class)
{
	FClassMembers Members;
	for (TFieldIterator<FProperty> Property(Class, EFieldIterationFlags::None); Class && Property; ++Property)
	{
		Members.Properties.Add(Property->GetFName(), Describe(**Property));
	}
	for (TFieldIterator<UFunction> Function(Class, EFieldIterationFlags::None); Class && Function; ++Function)
	{
		FString& Text = Members.Functions.Add(Function->GetFName());
		Text = FString::Printf(TEXT("%x"), static_cast<uint32>(Function->FunctionFlags));
		for (TFieldIterator<FProperty> Parameter(*Function); Parameter && Parameter->HasAnyPropertyFlags(CPF_Parm); ++Parameter)
		{
			Text += FString::Printf(TEXT(";%s %s"), *Parameter->GetName(), *Describe(**Parameter));
		}
	}
	return Members;
}

bool FClassMembers::IsSameAs(const FClassMembers& Other) const
{
	return AreSame(Functions, Other.Functions) && AreSame(Properties, Other.Properties);
}
