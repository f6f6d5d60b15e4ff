#pragma once

#include "Containers/Map.h"
#include "Delegates/Delegate.h"
#include "ToolMenu.h"

#include "ToolMenus.generated.h"

/**
 * All menus of the editor, which anybody may extend before or after they are registered. This host has no windows: here the menus
 * are what they would show, and whoever finds an entry may execute it. Game thread.
 */
UCLASS()
class TOOLMENUS_API UToolMenus : public UObject
{
	GENERATED_BODY()

public:
	static UToolMenus* Get();
	/** Null when there are no objects any more. */
	static UToolMenus* TryGet();

	/** Calls back when menus can be extended, which in this host is now. */
	static FDelegateHandle RegisterStartupCallback(const FSimpleMulticastDelegate::FDelegate& InDelegate);
	static void UnRegisterStartupCallback(const void* UserPointer);

	/** Takes every entry of an owner out of all menus. */
	static void UnregisterOwner(FToolMenuOwner Owner);

	/** The menu of that name to add to. It need not be registered. */
	UToolMenu* ExtendMenu(const FName Name);
	/** Null for a menu that nobody has registered or extended. */
	UToolMenu* FindMenu(const FName Name);

	void PushOwner(const FToolMenuOwner InOwner);
	void PopOwner(const FToolMenuOwner InOwner);
	/** The innermost of those pushed. */
	FToolMenuOwner CurrentOwner() const;

private:
	UPROPERTY()
	TMap<FName, TObjectPtr<UToolMenu>> Menus;

	TArray<FToolMenuOwner> OwnerStack;
};

/** Makes what is added to menus while it lives an owner's. */
class TOOLMENUS_API FToolMenuOwnerScoped
{
public:
	FToolMenuOwnerScoped(const FToolMenuOwner InOwner);
	~FToolMenuOwnerScoped();
	UE_NONCOPYABLE(FToolMenuOwnerScoped)

	FToolMenuOwner GetOwner() const { return Owner; }

private:
	FToolMenuOwner Owner;
};
