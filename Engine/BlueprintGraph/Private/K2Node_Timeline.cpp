#include "K2Node_Timeline.h"

#include "Curves/CurveFloat.h"
#include "Curves/CurveLinearColor.h"
#include "Curves/CurveVector.h"
#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphSchema.h"
#include "Engine/Blueprint.h"
#include "Engine/TimelineTemplate.h"
#include "UObject/Class.h"
#include "UObject/NoExportTypes.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"

#include <type_traits>

#define LOCTEXT_NAMESPACE "K2Node"

namespace
{
const TCHAR* const DirectionName = TEXT("Direction");
}

UTimelineTemplate* UK2Node_Timeline::GetTemplate() const
{
	UBlueprint* const Blueprint = GetBlueprint();
	return Blueprint ? Blueprint->FindTimelineTemplateByVariableName(TimelineName) : nullptr;
}

bool UK2Node_Timeline::HasKnownDefinition() const
{
	// Pasted text does not have the timeline's tracks: its pins do.
	return GetTemplate() != nullptr;
}

bool UK2Node_Timeline::IsCompatibleWithGraph(const UEdGraph* TargetGraph) const
{
	const UEdGraphSchema* const Schema = TargetGraph->GetSchema();
	return Super::IsCompatibleWithGraph(TargetGraph) && Schema && Schema->GetGraphType(TargetGraph) == GT_Ubergraph;
}

void UK2Node_Timeline::MakeNameUnique(const UBlueprint& Blueprint)
{
	const FString BaseName = TimelineName.IsNone() ? TEXT("Timeline") : TimelineName.ToString();
	TimelineName = FName(*BaseName);
	for (int32 Number = 0; Blueprint.FindTimelineIndex(TimelineName) != INDEX_NONE; ++Number)
	{
		TimelineName = FName(*FString::Printf(TEXT("%s_%d"), *BaseName, Number));
	}
}

UTimelineTemplate* UK2Node_Timeline::AddTemplate(UBlueprint& Blueprint, const UTimelineTemplate* Source)
{
	UObject* const Outer = Blueprint.GeneratedClass ? static_cast<UObject*>(Blueprint.GeneratedClass.Get()) : &Blueprint;
	const FName Name(*UTimelineTemplate::TimelineVariableNameToTemplateName(TimelineName));
	Blueprint.Modify();
	UTimelineTemplate* const Template = Source ? DuplicateObject<UTimelineTemplate>(Source, Outer, Name)
											   : NewObject<UTimelineTemplate>(Outer, Name);
	Template->SetFlags(RF_Transactional);
	Template->TimelineGuid = FGuid::NewGuid();
	Template->UpdateCachedNames();
	TimelineGuid = Template->TimelineGuid;
	Blueprint.Timelines.Add(Template);
	return Template;
}

void UK2Node_Timeline::PostPlacedNewNode()
{
	UBlueprint* const Blueprint = GetBlueprint();
	if (Blueprint && !GetTemplate())
	{
		MakeNameUnique(*Blueprint);
		AddTemplate(*Blueprint, nullptr);
	}
}

void UK2Node_Timeline::PostPasteNode()
{
	Super::PostPasteNode();
	UBlueprint* const Blueprint = GetBlueprint();
	if (!Blueprint)
	{
		return;
	}
	TArray<UObject*> Templates;
	GetObjectsOfClass(UTimelineTemplate::StaticClass(), Templates, true, RF_ClassDefaultObject, EInternalObjectFlags::Garbage);
	UObject* const* const Source = Templates.FindByPredicate([this](const UObject* Template)
		{ return CastChecked<UTimelineTemplate>(Template)->TimelineGuid == TimelineGuid; });
	// Two nodes never share a timeline: this one gets a copy of what it was copied from.
	MakeNameUnique(*Blueprint);
	UTimelineTemplate* const Template = AddTemplate(*Blueprint, Source ? CastChecked<UTimelineTemplate>(*Source) : nullptr);
	if (!Source)
	{
		AddTracksOfPins(*Template);
	}
}

void UK2Node_Timeline::AddTracksOfPins(UTimelineTemplate& Template) const
{
	const auto AddTrack = [&Template](auto& Tracks, auto Curve, const FName Name)
	{
		auto& Track = Tracks.AddDefaulted_GetRef();
		Track.SetTrackName(Name, &Template);
		using CurveClass = std::remove_reference_t<decltype(*(Track.*Curve))>;
		Track.*Curve = NewObject<CurveClass>(&Template, NAME_None, RF_Transactional);
	};
	for (const UEdGraphPin* const Pin : Pins)
	{
		const bool bIsOfEveryTimeline = Pin == GetUpdatePin() || Pin == GetFinishedPin() || Pin == FindPin(DirectionName);
		if (Pin->Direction != EGPD_Output || Pin->ParentPin || bIsOfEveryTimeline)
		{
			continue;
		}
		const FEdGraphPinType& Type = Pin->PinType;
		if (Type.PinCategory == UEdGraphSchema_K2::PC_Exec)
		{
			AddTrack(Template.EventTracks, &FTTEventTrack::CurveKeys, Pin->PinName);
		}
		else if (Type.PinCategory == UEdGraphSchema_K2::PC_Real)
		{
			AddTrack(Template.FloatTracks, &FTTFloatTrack::CurveFloat, Pin->PinName);
		}
		else if (Type.PinSubCategoryObject == TBaseStructure<FVector>::Get())
		{
			AddTrack(Template.VectorTracks, &FTTVectorTrack::CurveVector, Pin->PinName);
		}
		else if (Type.PinSubCategoryObject == TBaseStructure<FLinearColor>::Get())
		{
			AddTrack(Template.LinearColorTracks, &FTTLinearColorTrack::CurveLinearColor, Pin->PinName);
		}
	}
}

void UK2Node_Timeline::AllocateDefaultPins()
{
	// Set on each node rather than on the class, so that node text says it as the editor's does.
	bCanRenameNode = true;
	for (const TCHAR* const Name : {TEXT("Play"), TEXT("PlayFromStart"), TEXT("Stop"), TEXT("Reverse"), TEXT("ReverseFromEnd")})
	{
		CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Exec, Name);
	}
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Exec, TEXT("Update"));
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Exec, TEXT("Finished"));
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Exec, TEXT("SetNewTime"));
	CreatePinWithDefault(EGPD_Input, UEdGraphSchema_K2::PC_Real, TEXT("NewTime"), UEdGraphSchema_K2::PC_Float);
	CreatePin(
		EGPD_Output, UEdGraphSchema_K2::PC_Byte, FindObject<UEnum>(nullptr, TEXT("/Script/Engine.ETimelineDirection")), DirectionName);
	const UTimelineTemplate* const Template = GetTemplate();
	if (!Template)
	{
		return;
	}
	for (const FTTFloatTrack& Track : Template->FloatTracks)
	{
		CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Real, UEdGraphSchema_K2::PC_Float, Track.GetTrackName());
	}
	for (const FTTVectorTrack& Track : Template->VectorTracks)
	{
		CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Struct, TBaseStructure<FVector>::Get(), Track.GetTrackName());
	}
	for (const FTTLinearColorTrack& Track : Template->LinearColorTracks)
	{
		CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Struct, TBaseStructure<FLinearColor>::Get(), Track.GetTrackName());
	}
	for (const FTTEventTrack& Track : Template->EventTracks)
	{
		CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Exec, Track.GetTrackName());
	}
}

FText UK2Node_Timeline::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return TimelineName.IsNone() || TitleType == ENodeTitleType::MenuTitle ? LOCTEXT("AddTimeline", "Add Timeline...")
																		   : FText::FromName(TimelineName);
}

FText UK2Node_Timeline::GetTooltipText() const
{
	return LOCTEXT("TimelineTooltip", "Timeline node allows values to be keyframed over time.\nDouble click to open timeline editor.");
}

#undef LOCTEXT_NAMESPACE
