#pragma once

#include "CoreTypes.h"

class FName;
class UObject;

namespace UE::Core
{
/** A weak reference to a UObject, as the object array numbers them. All zero refers to nothing. */
struct FDelegateObject
{
	int32 ObjectIndex = 0;
	int32 ObjectSerialNumber = 0;

	bool operator==(const FDelegateObject&) const = default;
};

/**
 * What delegates need to know of objects. Objects live in the module above this one, which installs its answers at start-up;
 * until then no delegate can be bound to an object.
 */
class IDelegateObjectHost
{
public:
	virtual ~IDelegateObjectHost() = default;

	virtual FDelegateObject MakeWeak(const UObject* Object) = 0;
	/** The object, or null when it has been collected or waits for it. */
	virtual UObject* Resolve(const FDelegateObject& Object) = 0;
	virtual bool HasFunction(UObject* Object, FName FunctionName) = 0;
	/** Parameters are laid out as the function's properties are, return value last; false when there is no such function. */
	virtual bool CallFunction(UObject* Object, FName FunctionName, void* Parameters) = 0;
};

/** The host must outlive every delegate. */
CORE_API void SetDelegateObjectHost(IDelegateObjectHost* Host);

CORE_API FDelegateObject MakeDelegateObject(const UObject* Object);
CORE_API UObject* ResolveDelegateObject(const FDelegateObject& Object);
CORE_API bool DelegateObjectHasFunction(UObject* Object, FName FunctionName);
CORE_API bool CallDelegateObjectFunction(UObject* Object, FName FunctionName, void* Parameters);
}
