#pragma once

#include "CoreMinimal.h"
#include "Delegates/Delegate.h"
#include "UObject/Object.h"

struct FPropertyChangedEvent;

/** What the object system tells the rest. Game thread. */
struct COREUOBJECT_API FCoreUObjectDelegates
{
	DECLARE_MULTICAST_DELEGATE_TwoParams(FOnObjectPropertyChanged, UObject*, FPropertyChangedEvent&);
	static FOnObjectPropertyChanged OnObjectPropertyChanged;
	DECLARE_MULTICAST_DELEGATE_TwoParams(FOnPreObjectPropertyChanged, UObject*, const class FEditPropertyChain&);
	static FOnPreObjectPropertyChanged OnPreObjectPropertyChanged;
	DECLARE_MULTICAST_DELEGATE_OneParam(FOnObjectModified, UObject*);
	static FOnObjectModified OnObjectModified;
	DECLARE_MULTICAST_DELEGATE_TwoParams(FOnObjectTransacted, UObject*, const class FTransactionObjectEvent&);
	static FOnObjectTransacted OnObjectTransacted;
	DECLARE_MULTICAST_DELEGATE_OneParam(FOnAssetLoaded, UObject*);
	static FOnAssetLoaded OnAssetLoaded;
	DECLARE_MULTICAST_DELEGATE_ThreeParams(FOnObjectRenamed, UObject*, UObject*, FName);
	static FOnObjectRenamed OnObjectRenamed;
	typedef TMap<UObject*, UObject*> FReplacementObjectMap;
	DECLARE_MULTICAST_DELEGATE_OneParam(FOnObjectsReplaced, const FReplacementObjectMap&);
	static FOnObjectsReplaced OnObjectsReplaced;
	DECLARE_MULTICAST_DELEGATE_OneParam(FOnObjectsReinstanced, const FReplacementObjectMap&);
	static FOnObjectsReinstanced OnObjectsReinstanced;

	static FSimpleMulticastDelegate& GetPreGarbageCollectDelegate();
	static FSimpleMulticastDelegate& GetPostGarbageCollect();
	static FSimpleMulticastDelegate PreGarbageCollectConditionalBeginDestroy;
	static FSimpleMulticastDelegate PostPurgeGarbageDelegate;
};
