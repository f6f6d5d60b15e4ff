// Package: /Script/UMG
#pragma once

#include "Widget.h"
#include "WidgetLists.generated.h"

DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnListEntryInitializedDynamic, UObject*, Item, UUserWidget*, Widget);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnListEntryGeneratedDynamic, UUserWidget*, Widget);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnListEntryReleasedDynamic, UUserWidget*, Widget);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FSimpleListItemEventDynamic, UObject*, Item);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnListItemSelectionChangedDynamic, UObject*, Item, bool, bIsSelected);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnItemIsHoveredChangedDynamic, UObject*, Item, bool, bIsHovered);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnListItemScrolledIntoViewDynamic, UObject*, Item, UUserWidget*, Widget);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnListViewScrolledDynamic, float, ItemOffset, float, DistanceRemaining);

/** A list. */
UCLASS(Abstract, NotBlueprintable)
class UMG_API UListViewBase : public UWidget
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "ListEntries")
	TSubclassOf<UUserWidget> EntryWidgetClass;

	/** The displayed entry widgets. */
	UFUNCTION(BlueprintCallable, Category = "ListViewBase")
	const TArray<UUserWidget*> GetDisplayedEntryWidgets() const;

	/** Makes all rows anew. */
	UFUNCTION(BlueprintCallable, Category = "ListViewBase")
	void RegenerateAllEntries();

	UFUNCTION(BlueprintCallable, Category = "ListViewBase")
	void ScrollToTop();

	UFUNCTION(BlueprintCallable, Category = "ListViewBase")
	void ScrollToBottom();

	/** Sets the scroll offset. */
	UFUNCTION(BlueprintCallable, Category = "ListViewBase")
	void SetScrollOffset(const float InScrollOffset);

	/** The scroll offset. */
	UFUNCTION(BlueprintCallable, Category = "ListViewBase")
	float GetScrollOffset() const;

	/** Sets the wheel scroll multiplier. */
	UFUNCTION(BlueprintCallable, Category = "ListViewBase")
	void SetWheelScrollMultiplier(float NewWheelScrollMultiplier);

	/** Sets the scrollbar visibility. */
	UFUNCTION(BlueprintCallable, Category = "ListViewBase")
	void SetScrollbarVisibility(ESlateVisibility InVisibility);

	/** Sets the is pointer scrolling enabled. */
	UFUNCTION(BlueprintCallable, Category = "ListViewBase")
	void SetIsPointerScrollingEnabled(bool bInIsPointerScrollingEnabled);

	UFUNCTION(BlueprintCallable, Category = "ListViewBase")
	void RequestRefresh();
};

/** A list of objects. */
UCLASS()
class UMG_API UListView : public UListViewBase
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable, Category = "Events", meta = (DisplayName = "On Entry Initialized"))
	FOnListEntryInitializedDynamic BP_OnEntryInitialized;

	UPROPERTY(BlueprintAssignable, Category = "Events", meta = (DisplayName = "On Item Clicked"))
	FSimpleListItemEventDynamic BP_OnItemClicked;

	UPROPERTY(BlueprintAssignable, Category = "Events", meta = (DisplayName = "On Item Double Clicked"))
	FSimpleListItemEventDynamic BP_OnItemDoubleClicked;

	UPROPERTY(BlueprintAssignable, Category = "Events", meta = (DisplayName = "On Item Is Hovered Changed"))
	FOnItemIsHoveredChangedDynamic BP_OnItemIsHoveredChanged;

	UPROPERTY(BlueprintAssignable, Category = "Events", meta = (DisplayName = "On Item Selection Changed"))
	FOnListItemSelectionChangedDynamic BP_OnItemSelectionChanged;

	UPROPERTY(BlueprintAssignable, Category = "Events", meta = (DisplayName = "On Item Scrolled Into View"))
	FOnListItemScrolledIntoViewDynamic BP_OnItemScrolledIntoView;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "ListView")
	TEnumAsByte<EOrientation> Orientation;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "ListView")
	TEnumAsByte<ESelectionMode::Type> SelectionMode;

	/** The list items. */
	UFUNCTION(BlueprintCallable, Category = "ListView")
	const TArray<UObject*>& GetListItems() const;

	/** Adds an object. */
	UFUNCTION(BlueprintCallable, Category = "ListView")
	void AddItem(UObject* Item);

	/** Takes an object out. */
	UFUNCTION(BlueprintCallable, Category = "ListView")
	void RemoveItem(UObject* Item);

	/** The item at. */
	UFUNCTION(BlueprintCallable, Category = "ListView")
	UObject* GetItemAt(int32 Index) const;

	/** The num items. */
	UFUNCTION(BlueprintCallable, Category = "ListView")
	int32 GetNumItems() const;

	/** The index for item. */
	UFUNCTION(BlueprintCallable, Category = "ListView")
	int32 GetIndexForItem(const UObject* Item) const;

	/** Takes all objects out. */
	UFUNCTION(BlueprintCallable, Category = "ListView")
	void ClearListItems();

	/** True if it is refresh pending. */
	UFUNCTION(BlueprintCallable, Category = "ListView")
	bool IsRefreshPending() const;

	/** Sets the selection mode. */
	UFUNCTION(BlueprintCallable, Category = "ListView")
	void SetSelectionMode(TEnumAsByte<ESelectionMode::Type> SelectionMode);

	UFUNCTION(BlueprintCallable, Category = "ListView")
	void ScrollIndexIntoView(int32 Index);

	/** Sets the selected index. */
	UFUNCTION(BlueprintCallable, Category = "ListView")
	void SetSelectedIndex(int32 Index);

	UFUNCTION(BlueprintCallable, Category = "ListView")
	void NavigateToIndex(int32 Index);

	/** Sets the list items. */
	UFUNCTION(BlueprintCallable, Category = "ListView", meta = (DisplayName = "Set List Items", AllowPrivateAccess = "true"))
	void BP_SetListItems(const TArray<UObject*>& InListItems);

	/** The selected item. */
	UFUNCTION(BlueprintPure, Category = "ListView", meta = (DisplayName = "Get Selected Item", AllowPrivateAccess = "true"))
	UObject* BP_GetSelectedItem() const;

	/** The selected items. */
	UFUNCTION(BlueprintCallable, Category = "ListView", meta = (DisplayName = "Get Selected Items", AllowPrivateAccess = "true"))
	bool BP_GetSelectedItems(TArray<UObject*>& Items) const;

	/** Sets the selected item. */
	UFUNCTION(BlueprintCallable, Category = "ListView", meta = (DisplayName = "Set Selected Item", AllowPrivateAccess = "true"))
	void BP_SetSelectedItem(UObject* Item);

	/** Sets the item selection. */
	UFUNCTION(BlueprintCallable, Category = "ListView", meta = (DisplayName = "Set Item Selection", AllowPrivateAccess = "true"))
	void BP_SetItemSelection(UObject* Item, bool bSelected);

	/** Selects nothing. */
	UFUNCTION(BlueprintCallable, Category = "ListView", meta = (DisplayName = "Clear Selection", AllowPrivateAccess = "true"))
	void BP_ClearSelection();

	/** The num items selected. */
	UFUNCTION(BlueprintCallable, Category = "ListView", meta = (DisplayName = "Get Num Items Selected", AllowPrivateAccess = "true"))
	int32 BP_GetNumItemsSelected() const;

	/** True if it is item visible. */
	UFUNCTION(BlueprintCallable, Category = "ListView", meta = (DisplayName = "Is Item Visible", AllowPrivateAccess = "true"))
	bool BP_IsItemVisible(UObject* Item) const;

	UFUNCTION(BlueprintCallable, Category = "ListView", meta = (DisplayName = "Navigate To Item", AllowPrivateAccess = "true"))
	void BP_NavigateToItem(UObject* Item);

	/** Scrolls to an object. */
	UFUNCTION(BlueprintCallable, Category = "ListView", meta = (DisplayName = "Scroll Item Into View", AllowPrivateAccess = "true"))
	void BP_ScrollItemIntoView(UObject* Item);

	UFUNCTION(BlueprintCallable, Category = "ListView", meta = (DisplayName = "Cancel Scroll Into View", AllowPrivateAccess = "true"))
	void BP_CancelScrollIntoView();
};

/** A list of tiles. */
UCLASS()
class UMG_API UTileView : public UListView
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "ListEntries")
	float EntryHeight = 128.f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "ListEntries")
	float EntryWidth = 128.f;

	/** Sets the entry height. */
	UFUNCTION(BlueprintCallable, Category = "ListEntries")
	void SetEntryHeight(float NewHeight);

	/** Sets the entry width. */
	UFUNCTION(BlueprintCallable, Category = "ListEntries")
	void SetEntryWidth(float NewWidth);

	/** The entry height. */
	UFUNCTION(BlueprintCallable, Category = "ListEntries")
	float GetEntryHeight() const;

	/** The entry width. */
	UFUNCTION(BlueprintCallable, Category = "ListEntries")
	float GetEntryWidth() const;
};

/** A list of objects with others below them. */
UCLASS()
class UMG_API UTreeView : public UListView
{
	GENERATED_BODY()

public:
	/** Sets the item expansion. */
	UFUNCTION(BlueprintCallable, Category = "TreeView")
	void SetItemExpansion(UObject* Item, bool bExpandItem);

	UFUNCTION(BlueprintCallable, Category = "TreeView")
	void ExpandAll();

	UFUNCTION(BlueprintCallable, Category = "TreeView")
	void CollapseAll();
};

/** A row of a list. */
UINTERFACE()
class UMG_API UUserListEntry : public UInterface
{
	GENERATED_BODY()
};

class UMG_API IUserListEntry
{
	GENERATED_BODY()

public:
	/** The row is selected or not any more. */
	UFUNCTION(BlueprintImplementableEvent, Category = "TreeView", meta = (DisplayName = "On Item Selection Changed"))
	void BP_OnItemSelectionChanged(bool bIsSelected);

	/** The row is opened or closed. */
	UFUNCTION(BlueprintImplementableEvent, Category = "TreeView", meta = (DisplayName = "On Item Expansion Changed"))
	void BP_OnItemExpansionChanged(bool bIsExpanded);

	/** The row is not used any more. */
	UFUNCTION(BlueprintImplementableEvent, Category = "TreeView", meta = (DisplayName = "On Entry Released"))
	void BP_OnEntryReleased();
};

/** A row of a list of objects. */
UINTERFACE()
class UMG_API UUserObjectListEntry : public UUserListEntry
{
	GENERATED_BODY()
};

class UMG_API IUserObjectListEntry : public IUserListEntry
{
	GENERATED_BODY()

public:
	/** The row gets its object. */
	UFUNCTION(BlueprintImplementableEvent, Category = "TreeView")
	void OnListItemObjectSet(UObject* ListItemObject);
};
