#include "Tools/Blueprint/VexelObjectEditHints.h"

#include "Blueprint/VexelBlueprintMapping.h"
#include "Lum/LumCompound.h"
#include "Lum/LumHelper.h"
#include "Lum/LumNearestNames.h"
#include "Lum/LumPropertyCollector.h"
#include "Lum/LumStructureEdit.h"
#include "Lum/LumVariable.h"
#include "Tools/Blueprint/VexelBlueprintRequestHelper.h"
#include "Tools/Blueprint/VexelObjectEditRequest.h"

#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "Engine/Blueprint.h"

namespace
{
/** Where a path comes to an end too early: the compound that has no such property, and the way to it. */
struct FDeadEnd
{
	TSharedRef<ILumCompound> Compound;
	/** With a point at the end; empty for the target itself. */
	FString Way;
	FString Missing;
};

/** Unset where every segment is there, or one leads nowhere. */
TOptional<FDeadEnd> FindDeadEnd(const TSharedRef<ILumCompound>& Target, const FString& Path)
{
	FDeadEnd End{Target, FString(), FString()};
	FString Rest = Path;
	for (int32 NumSegments = 0; NumSegments < FLumHelper::MaxPathSegments; ++NumSegments)
	{
		const TVexelExpected<TSharedRef<ILumProperty>> Found = FLumHelper::CompoundPathResolveSegment(End.Compound, Rest, End.Missing);
		if (Found.HasError())
		{
			return End;
		}
		const ILumCompoundProperty* const Property = Found.GetValue()->AsCompoundProperty();
		const TVexelExpected<TSharedPtr<ILumCompound>> Next =
			Property && !Rest.IsEmpty() ? Property->GetCompound() : TVexelExpected<TSharedPtr<ILumCompound>>(nullptr);
		if (Next.HasError() || !Next.GetValue())
		{
			return {};
		}
		End.Compound = Next.GetValue().ToSharedRef();
		End.Way += End.Missing + TEXT(".");
	}
	return {};
}

/** How a property is told: by its path, or where a scope was given, with the word that it has none. */
using FShowProperty = TFunction<FString(const TVexelPropId& Id)>;

FShowProperty ShowBelow(const FString& Way)
{
	return [Way](const TVexelPropId& Id)
	{
		return FString::Printf(TEXT("'%s%s'"), *Way, *Id);
	};
}

/** Offers what a compound has: properties where they are wanted, and variables with their scopes. */
class FOfferingCollector : public ILumPropertyCollector
{
public:
	FOfferingCollector(FLumNearestNames& InNearest, const FShowProperty& InShowProperty)
		: Nearest(InNearest)
		, ShowProperty(InShowProperty)
	{
	}

	virtual TVexelExpected<void> Property(const TSharedRef<ILumProperty>& Property) override
	{
		VEXEL_TRY(const TVexelPropId Id, Property->GetPropId());
		if (ShowProperty)
		{
			Nearest.Offer(Id.ToString(), 1, [&]
				{ return ShowProperty(Id); });
		}
		return {};
	}

	virtual TVexelExpected<void> Variable(const TSharedRef<ILumVariable>& Variable) override
	{
		VEXEL_TRY(const TVexelPropId Id, Variable->GetPropId());
		VEXEL_TRY(const TVexelVarScopeId Scope, Variable->GetVarScopeId());
		Nearest.Offer(Id.ToString(), 1, [&]
			{ return FString::Printf(TEXT("'%s' of scope '%s'"), *Id, *Scope); });
		return {};
	}

private:
	FLumNearestNames& Nearest;
	const FShowProperty& ShowProperty;
};

void Offer(FLumNearestNames& Nearest, const ILumCompound& Compound, const FShowProperty& ShowProperty)
{
	FOfferingCollector Collector(Nearest, ShowProperty);
	// A hint says what it can.
	static_cast<void>(Compound.IterateProperties(Collector));
}

/** Below the Blueprint's default object stands most of what is looked for in the Blueprint. */
void OfferDefaults(FLumNearestNames& Nearest, const TSharedRef<ILumCompound>& Target)
{
	const FString Defaults = TEXT("$ClassDefaultObject.");
	const TOptional<FDeadEnd> End = FindDeadEnd(Target, Defaults + TEXT("."));
	if (End && End->Way == Defaults)
	{
		Offer(Nearest, *End->Compound, ShowBelow(Defaults));
	}
}

/** The id of a node without its number, which says nothing of what it is like. */
FString GetTitle(const FString& NodeId)
{
	int32 Place = INDEX_NONE;
	return NodeId.FindLastChar(TEXT('_'), Place) && NodeId.RightChop(Place + 1).IsNumeric() ? NodeId.Left(Place) : NodeId;
}

FString DescribeVariable(const TSharedRef<ILumCompound>& Target, const FString& Scope, const FString& Name, const FShowProperty& ShowProperty)
{
	const TVexelExpected<TSharedPtr<ILumVariable>> Found = Target->FindVariable(TVexelVarScopeId(Scope), TVexelPropId(Name));
	if (Found.HasError() || Found.GetValue() || !FLumEditBatch::TakeSuggestion())
	{
		return FString();
	}
	FLumNearestNames Nearest(Name);
	Offer(Nearest, *Target, ShowProperty);
	return Nearest.Describe();
}

FString DescribePath(const TSharedRef<ILumCompound>& Target, const FString& Path)
{
	const TOptional<FDeadEnd> End = FindDeadEnd(Target, Path);
	if (!End || !FLumEditBatch::TakeSuggestion())
	{
		return FString();
	}
	FLumNearestNames Nearest(End->Missing);
	Offer(Nearest, *End->Compound, ShowBelow(End->Way));
	if (End->Way.IsEmpty())
	{
		OfferDefaults(Nearest, Target);
	}
	else
	{
		// A variable is no property of the class before it has been compiled.
		Offer(Nearest, *Target, nullptr);
	}
	return Nearest.Describe();
}

/** Whether somebody gave a list, or a value in the form in which it is shown. */
bool IsInOtherForm(const FJsonValue& Value)
{
	const TSharedPtr<FJsonObject>* Object = nullptr;
	return Value.Type == EJson::Array ||
		(Value.TryGetObject(Object) && (*Object)->HasField(TEXT("type")) && (*Object)->HasField(TEXT("properties")));
}
}

FString VexelObjectEditHints::Describe(const TSharedRef<ILumCompound>& Target, const FEditRequestOperationOnProp& Operation)
{
	const auto ShowWithoutScope = [](const TVexelPropId& Id)
	{
		return FString::Printf(TEXT("'%s' without a scope"), *Id);
	};
	FString Hint = Operation.Scope.IsEmpty() ? DescribePath(Target, Operation.PropPath)
											 : DescribeVariable(Target, Operation.Scope, Operation.PropPath, ShowWithoutScope);
	if (Hint.IsEmpty() && Operation.Value && IsInOtherForm(*Operation.Value))
	{
		return TEXT(". Fields and elements are given by their ids, as {\"X\": \"1\"} and {\"0\": \"Coin\"}");
	}
	return Hint;
}

FString VexelObjectEditHints::Describe(const TSharedRef<ILumCompound>& Target, const FEditRequestOperationOnVar& Operation)
{
	const bool bIsNew = Operation.Type == EVexelEditOperation::AddVariable || Operation.Type == EVexelEditOperation::AddPin;
	return bIsNew || Operation.Name.IsEmpty() ? FString() : DescribeVariable(Target, Operation.Scope, Operation.Name, nullptr);
}

FString VexelObjectEditHints::Describe(const FVexelBlueprintRequestHelper& Blueprint, const FEditRequest& Request)
{
	if (Request.Target.Type == EVexelEditTarget::Unknown)
	{
		return TEXT(". Target types are ") + VexelEditWords::ListTargets();
	}
	if (!FLumEditBatch::TakeSuggestion())
	{
		return FString();
	}
	const UEdGraph* const Wanted = Blueprint.FindGraph(Request.Target.GraphId);
	FLumNearestNames Nearest(Wanted ? GetTitle(Request.Target.NodeId) : Request.Target.GraphId);
	TArray<UEdGraph*> Graphs;
	Blueprint.GetBlueprint().GetAllGraphs(Graphs);
	for (const UEdGraph* const Graph : Graphs)
	{
		const FString GraphName = Graph ? Graph->GetName() : FString();
		if (Graph && !Wanted)
		{
			Nearest.Offer(GraphName, 1, [&]
				{ return FString::Printf(TEXT("'%s'"), *GraphName); });
		}
		for (int32 Index = 0; Graph && Wanted && Index < Graph->Nodes.Num(); ++Index)
		{
			const FString NodeId = Graph->Nodes[Index] ? Blueprint.GetMapping().MakeNodeReference(*Graph->Nodes[Index], true).ToString() : FString();
			Nearest.Offer(GetTitle(NodeId), 1, [&]
				{ return FString::Printf(TEXT("'%s' in graph '%s'"), *NodeId, *GraphName); });
		}
	}
	return Nearest.Describe();
}
