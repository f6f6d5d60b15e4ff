#pragma once

#include "CoreTypes.h"
#include "UObject/NameTypes.h"

/** Who added an entry: an address or a name. What an owner added goes when it is unregistered. */
struct FToolMenuOwner
{
	FToolMenuOwner() = default;
	FToolMenuOwner(const void* InPointer)
		: Pointer(InPointer)
	{
	}
	FToolMenuOwner(const FName InName)
		: Name(InName)
	{
	}

	bool IsSet() const { return Pointer != nullptr || !Name.IsNone(); }
	bool operator==(const FToolMenuOwner& Other) const { return Pointer == Other.Pointer && Name == Other.Name; }
	bool operator!=(const FToolMenuOwner& Other) const { return !(*this == Other); }

private:
	const void* Pointer = nullptr;
	FName Name;
};
