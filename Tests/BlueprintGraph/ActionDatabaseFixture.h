#pragma once

#include "BlueprintActionDatabase.h"
#include "BlueprintActionFilter.h"
#include "BlueprintNodeSpawner.h"
#include "GraphFixture.h"
#include "Kismet2/BlueprintEditorUtils.h"

/** A test that asks the action database for what can be placed in its Blueprint's graph. */
class FActionDatabaseTest : public FGraphTest
{
protected:
	using FActionList = FBlueprintActionDatabase::FActionList;

	static const FActionList& GetActions(const UObject* Key)
	{
		static const FActionList None;
		const FActionList* const Found = FBlueprintActionDatabase::Get().GetAllActions().Find(FObjectKey(Key));
		return Found ? *Found : None;
	}

	/** The action whose node has the menu title; null when there is none. */
	static UBlueprintNodeSpawner* Find(const UObject* Key, const TCHAR* Title)
	{
		for (UBlueprintNodeSpawner* const Action : GetActions(Key))
		{
			if (Action->PrimeDefaultUiSpec().MenuName.ToString() == Title)
			{
				return Action;
			}
		}
		return nullptr;
	}

	template <class NodeType>
	NodeType* Spawn(const UObject* Key, const TCHAR* Title, const IBlueprintNodeBinder::FBindingSet& Bindings = {})
	{
		UBlueprintNodeSpawner* const Action = Find(Key, Title);
		EXPECT_NE(Action, nullptr) << TCHAR_TO_UTF8(Title);
		return Action ? Cast<NodeType>(Action->Invoke(Graph, Bindings, FVector2D(16, 32))) : nullptr;
	}

	bool IsFiltered(const UObject* Key, const TCHAR* Title, UEdGraph* InGraph = nullptr)
	{
		UBlueprintNodeSpawner* const Action = Find(Key, Title);
		EXPECT_NE(Action, nullptr) << TCHAR_TO_UTF8(Title);
		FBlueprintActionFilter Filter;
		Filter.Context.Blueprints.Add(Blueprint);
		Filter.Context.Graphs.Add(InGraph ? InGraph : Graph);
		FBlueprintActionInfo Info(Key, Action);
		return !Action || Filter.IsFiltered(Info);
	}

	void AddVariable(const TCHAR* Name)
	{
		const FEdGraphPinType Type(UEdGraphSchema_K2::PC_Int, NAME_None, nullptr, EPinContainerType::None, false, FEdGraphTerminalType());
		ASSERT_TRUE(FBlueprintEditorUtils::AddMemberVariable(Blueprint, Name, Type));
	}

	static UClass* FindClass(const TCHAR* Path) { return FindObject<UClass>(nullptr, Path); }
};
