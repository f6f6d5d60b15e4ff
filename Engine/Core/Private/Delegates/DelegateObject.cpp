#include "Delegates/DelegateObject.h"

#include "Delegates/IDelegateInstance.h"
#include "Misc/AssertionMacros.h"
#include "UObject/NameTypes.h"

#include <atomic>

namespace
{
std::atomic<UE::Core::IDelegateObjectHost*> ObjectHost = nullptr;
}

uint64 FDelegateHandle::GenerateNewID()
{
	static std::atomic<uint64> LastID = 0;
	return ++LastID;
}

namespace UE::Core
{
void SetDelegateObjectHost(IDelegateObjectHost* Host)
{
	ObjectHost = Host;
}

FDelegateObject MakeDelegateObject(const UObject* Object)
{
	if (Object == nullptr)
	{
		return FDelegateObject();
	}
	IDelegateObjectHost* const Host = ObjectHost;
	checkf(Host != nullptr, TEXT("A delegate was bound to an object before there is an object system"));
	return Host->MakeWeak(Object);
}

UObject* ResolveDelegateObject(const FDelegateObject& Object)
{
	IDelegateObjectHost* const Host = ObjectHost;
	return Host != nullptr && Object != FDelegateObject() ? Host->Resolve(Object) : nullptr;
}

bool DelegateObjectHasFunction(UObject* Object, FName FunctionName)
{
	IDelegateObjectHost* const Host = ObjectHost;
	return Host != nullptr && Object != nullptr && Host->HasFunction(Object, FunctionName);
}

bool CallDelegateObjectFunction(UObject* Object, FName FunctionName, void* Parameters)
{
	IDelegateObjectHost* const Host = ObjectHost;
	return Host != nullptr && Object != nullptr && Host->CallFunction(Object, FunctionName, Parameters);
}
}
