#include "UObject/CoreUObjectDelegates.h"

#include "Delegates/DelegateObject.h"
#include "Templates/Casts.h"
#include "UObject/UnrealType.h"
#include "UObject/WeakObjectPtr.h"

FCoreUObjectDelegates::FOnObjectPropertyChanged FCoreUObjectDelegates::OnObjectPropertyChanged;
FCoreUObjectDelegates::FOnPreObjectPropertyChanged FCoreUObjectDelegates::OnPreObjectPropertyChanged;
FCoreUObjectDelegates::FOnObjectModified FCoreUObjectDelegates::OnObjectModified;
FCoreUObjectDelegates::FOnObjectTransacted FCoreUObjectDelegates::OnObjectTransacted;
FCoreUObjectDelegates::FOnAssetLoaded FCoreUObjectDelegates::OnAssetLoaded;
FCoreUObjectDelegates::FOnObjectRenamed FCoreUObjectDelegates::OnObjectRenamed;
FCoreUObjectDelegates::FOnObjectsReplaced FCoreUObjectDelegates::OnObjectsReplaced;
FCoreUObjectDelegates::FOnObjectsReinstanced FCoreUObjectDelegates::OnObjectsReinstanced;
FSimpleMulticastDelegate FCoreUObjectDelegates::PreGarbageCollectConditionalBeginDestroy;
FSimpleMulticastDelegate FCoreUObjectDelegates::PostPurgeGarbageDelegate;

FSimpleMulticastDelegate& FCoreUObjectDelegates::GetPreGarbageCollectDelegate()
{
	static FSimpleMulticastDelegate Delegate;
	return Delegate;
}

FSimpleMulticastDelegate& FCoreUObjectDelegates::GetPostGarbageCollect()
{
	static FSimpleMulticastDelegate Delegate;
	return Delegate;
}

FName FPropertyChangedEvent::GetPropertyName() const
{
	return Property ? Property->GetFName() : FName();
}

FName FPropertyChangedEvent::GetMemberPropertyName() const
{
	return MemberProperty ? MemberProperty->GetFName() : FName();
}

void CastLogError(const FString& FromType, const FString& ToType)
{
	UE_LOG(LogObj, Fatal, TEXT("Cast of %s to %s failed"), *FromType, *ToType);
	std::abort();
}

namespace
{
/** Answers what delegates, which know nothing of objects, ask about them. */
class FDelegateObjectHost final : public UE::Core::IDelegateObjectHost
{
public:
	UE::Core::FDelegateObject MakeWeak(const UObject* Object) override
	{
		const FWeakObjectPtr Weak(Object);
		return {Weak.GetObjectIndex(), Weak.GetObjectSerialNumber()};
	}
	UObject* Resolve(const UE::Core::FDelegateObject& Object) override
	{
		const FUObjectItem* const Item = Object.ObjectSerialNumber ? GUObjectArray.IndexToObject(Object.ObjectIndex) : nullptr;
		return Item && Item->SerialNumber == Object.ObjectSerialNumber && !Item->IsUnreachable() && !Item->IsGarbage()
			? static_cast<UObject*>(Item->Object)
			: nullptr;
	}
	bool HasFunction(UObject* Object, FName FunctionName) override { return Object->FindFunction(FunctionName) != nullptr; }
	bool CallFunction(UObject* Object, FName FunctionName, void* Parameters) override
	{
		UFunction* const Function = Object->FindFunction(FunctionName);
		if (Function)
		{
			Object->ProcessEvent(Function, Parameters);
		}
		return Function != nullptr;
	}
};

struct FInstallDelegateObjectHost
{
	FInstallDelegateObjectHost()
	{
		static FDelegateObjectHost& Host = *new FDelegateObjectHost;
		UE::Core::SetDelegateObjectHost(&Host);
	}
} InstallDelegateObjectHost;
}
