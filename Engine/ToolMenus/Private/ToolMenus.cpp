#include "ToolMenus.h"

#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/WeakObjectPtr.h"

bool FToolMenuEntry::TryExecuteToolUIAction(const FToolMenuContext&)
{
	const FUIAction* const UIAction = Action.GetUIAction();
	return UIAction && UIAction->Execute();
}

FToolMenuEntry& FToolMenuSection::AddMenuEntry(const FName InName, const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip,
	const TAttribute<FSlateIcon>& InIcon, const FToolUIActionChoice& InAction)
{
	FToolMenuEntry* const Earlier = FindEntry(InName);
	FToolMenuEntry& Entry = Earlier ? *Earlier : Blocks.AddDefaulted_GetRef();
	Entry = FToolMenuEntry{InName, UToolMenus::Get()->CurrentOwner(), InLabel, InToolTip, InIcon, InAction};
	return Entry;
}

FToolMenuEntry* FToolMenuSection::FindEntry(const FName InName)
{
	return Blocks.FindByPredicate([&](const FToolMenuEntry& Entry)
		{ return Entry.Name == InName; });
}

FToolMenuSection& UToolMenu::FindOrAddSection(const FName SectionName)
{
	if (FToolMenuSection* const Found = FindSection(SectionName))
	{
		return *Found;
	}
	FToolMenuSection& Section = Sections.AddDefaulted_GetRef();
	Section.Name = SectionName;
	return Section;
}

FToolMenuSection& UToolMenu::FindOrAddSection(const FName SectionName, const TAttribute<FText>& InLabel)
{
	FToolMenuSection& Section = FindOrAddSection(SectionName);
	if (!Section.Label.IsSet())
	{
		Section.Label = InLabel;
	}
	return Section;
}

FToolMenuSection* UToolMenu::FindSection(const FName SectionName)
{
	return Sections.FindByPredicate([&](const FToolMenuSection& Section)
		{ return Section.Name == SectionName; });
}

UToolMenus* UToolMenus::Get()
{
	UToolMenus* const Menus = TryGet();
	checkf(Menus, TEXT("There are no menus without objects"));
	return Menus;
}

UToolMenus* UToolMenus::TryGet()
{
	static TWeakObjectPtr<UToolMenus> Singleton;
	if (!Singleton.IsValid() && UObjectInitialized())
	{
		Singleton = NewObject<UToolMenus>(GetTransientPackage());
		Singleton->AddToRoot();
	}
	return Singleton.Get();
}

FDelegateHandle UToolMenus::RegisterStartupCallback(const FSimpleMulticastDelegate::FDelegate& InDelegate)
{
	InDelegate.ExecuteIfBound();
	return InDelegate.GetHandle();
}

void UToolMenus::UnRegisterStartupCallback(const void*)
{
}

void UToolMenus::UnregisterOwner(FToolMenuOwner Owner)
{
	UToolMenus* const This = TryGet();
	if (!This)
	{
		return;
	}
	for (const auto& [Name, Menu] : This->Menus)
	{
		for (FToolMenuSection& Section : Menu->Sections)
		{
			Section.Blocks.RemoveAll([&](const FToolMenuEntry& Entry)
				{ return Entry.Owner == Owner; });
		}
	}
}

UToolMenu* UToolMenus::ExtendMenu(const FName Name)
{
	TObjectPtr<UToolMenu>& Menu = Menus.FindOrAdd(Name);
	if (!Menu)
	{
		Menu = NewObject<UToolMenu>(this);
		Menu->MenuName = Name;
	}
	return Menu;
}

UToolMenu* UToolMenus::FindMenu(const FName Name)
{
	const TObjectPtr<UToolMenu>* const Found = Menus.Find(Name);
	return Found ? Found->Get() : nullptr;
}

void UToolMenus::PushOwner(const FToolMenuOwner InOwner)
{
	OwnerStack.Push(InOwner);
}

void UToolMenus::PopOwner(const FToolMenuOwner InOwner)
{
	checkf(!OwnerStack.IsEmpty() && OwnerStack.Last() == InOwner, TEXT("Owners of menus are popped in the reverse order"));
	OwnerStack.Pop();
}

FToolMenuOwner UToolMenus::CurrentOwner() const
{
	return OwnerStack.IsEmpty() ? FToolMenuOwner() : OwnerStack.Last();
}

FToolMenuOwnerScoped::FToolMenuOwnerScoped(const FToolMenuOwner InOwner)
	: Owner(InOwner)
{
	UToolMenus::Get()->PushOwner(Owner);
}

FToolMenuOwnerScoped::~FToolMenuOwnerScoped()
{
	UToolMenus::Get()->PopOwner(Owner);
}
