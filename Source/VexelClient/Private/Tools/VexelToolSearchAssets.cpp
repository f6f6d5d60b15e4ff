#include "AssetRegistry/IAssetRegistry.h"
#include "Misc/PackageName.h"
#include "Tools/VexelAssetIndexSubsystem.h"
#include "Tools/VexelTool.h"
#include "Tools/VexelToolAsset.h"
#include "Tools/VexelToolSchema.h"

namespace
{
constexpr int32 MaxQueryLength = 200;
constexpr int32 MaxClassesNamed = 20;

struct FSearchAssetsInput
{
	TOptional<FString> Query;
	TOptional<FString> Class;
	TOptional<FString> Path;
	TSharedPtr<FJsonObject> Tags;
	int32 Limit = 20;
	int32 Offset = 0;

	static const TVexelToolSchema<FSearchAssetsInput>& GetSchema()
	{
		static const TVexelToolSchema<FSearchAssetsInput> Schema =
			TVexelToolSchema<FSearchAssetsInput>()
				.Optional(TEXT("query"), &FSearchAssetsInput::Query, {.Most = MaxQueryLength, .bNotEmpty = true})
				.Optional(TEXT("class"), &FSearchAssetsInput::Class, {.Most = NAME_SIZE - 1, .bNotEmpty = true})
				.Optional(TEXT("path"), &FSearchAssetsInput::Path, {.bNotEmpty = true})
				.Optional(TEXT("tags"), &FSearchAssetsInput::Tags)
				.Optional(TEXT("limit"), &FSearchAssetsInput::Limit, {.Least = 1, .Most = 200})
				.Optional(TEXT("offset"), &FSearchAssetsInput::Offset, {.Least = 0});
		return Schema;
	}
};

/** A tag that an asset must have, with its value unless any will do. */
struct FWantedTag
{
	FName Name;
	TOptional<FString> Value;

	bool IsOn(const FAssetData& Asset) const
	{
		const FAssetTagValueRef Found = Asset.TagsAndValues.FindTag(Name);
		return Found.IsSet() && (!Value || Found.Equals(*Value));
	}
};

/** What the assets must be like apart from their names. */
struct FAssetConditions
{
	/** All but the tags, of which a filter takes any one where all are wanted: it has the first. */
	FARFilter Filter;
	TArray<FWantedTag> Tags;

	bool IsEmpty() const { return Filter.IsEmpty(); }
	/** Takes out those that are not like that, and leaves the others in their order. */
	void Apply(TArray<FAssetData>& Assets) const
	{
		if (!IsEmpty())
		{
			IAssetRegistry::GetChecked().RunAssetsThroughFilter(Assets, Filter);
			ApplyTags(Assets);
		}
	}
	void ApplyTags(TArray<FAssetData>& Assets) const
	{
		Assets.RemoveAll([this](const FAssetData& Asset)
			{ return Tags.ContainsByPredicate([&Asset](const FWantedTag& Tag)
				  { return !Tag.IsOn(Asset); }); });
	}
};

TVexelExpected<void> AddClass(const FString& Name, FARFilter& Filter)
{
	UVexelAssetIndexSubsystem& Index = UVexelAssetIndexSubsystem::Get();
	Filter.ClassPaths = Index.FindClasses(Name);
	Filter.bRecursiveClasses = true;
	if (!Filter.ClassPaths.IsEmpty())
	{
		return {};
	}
	TArray<FString> Known;
	for (const TPair<FTopLevelAssetPath, int32>& Pair : Index.GetNumOfClass())
	{
		if (Pair.Value > 0)
		{
			Known.Add(Pair.Key.GetAssetName().ToString());
		}
	}
	Known.Sort();
	Known.SetNum(FMath::Min(Known.Num(), MaxClassesNamed));
	return VEXEL_ERROR(
		FVexelError_ToolInvalidInput, "There is no class '%s'; assets here are of the classes %s", *Name, *FString::Join(Known, TEXT(", ")));
}

TVexelExpected<void> AddPath(FString Path, FARFilter& Filter)
{
	while (Path.Len() > 1 && Path.RemoveFromEnd(TEXT("/")))
	{
	}
	const bool bIsPath = Path.StartsWith(TEXT("/")) && Path.Len() < NAME_SIZE;
	if (!bIsPath || (!FPackageName::MountPointExists(Path + TEXT("/")) && !IAssetRegistry::GetChecked().HasAssets(FName(*Path), true)))
	{
		return VEXEL_ERROR(FVexelError_ToolInvalidInput, "There is no folder '%s' with assets; a folder is like '/Game/Doors'", *Path.Left(NAME_SIZE));
	}
	Filter.PackagePaths.Add(FName(*Path));
	Filter.bRecursivePaths = true;
	return {};
}

TVexelExpected<void> AddTags(const FJsonObject& Object, FAssetConditions& Conditions)
{
	for (const TPair<FString, TSharedPtr<FJsonValue>>& Pair : Object.Values)
	{
		FString Value;
		const bool bAny = Pair.Value->IsNull();
		if (Pair.Key.IsEmpty() || Pair.Key.Len() >= NAME_SIZE || (!bAny && !Pair.Value->TryGetString(Value)))
		{
			return VEXEL_ERROR(FVexelError_ToolInvalidInput, "`tags.%s` must be a string, or null for any value", *Pair.Key.Left(NAME_SIZE));
		}
		Conditions.Tags.Add({FName(*Pair.Key), bAny ? TOptional<FString>() : TOptional<FString>(Value)});
	}
	if (!Conditions.Tags.IsEmpty())
	{
		Conditions.Filter.TagsAndValues.Add(Conditions.Tags[0].Name, Conditions.Tags[0].Value);
	}
	return {};
}

TVexelExpected<FAssetConditions> ReadConditions(const FSearchAssetsInput& Input)
{
	FAssetConditions Conditions;
	if (Input.Class)
	{
		VEXEL_TRY_VOID(AddClass(*Input.Class, Conditions.Filter));
	}
	if (Input.Path)
	{
		VEXEL_TRY_VOID(AddPath(*Input.Path, Conditions.Filter));
	}
	if (Input.Tags)
	{
		VEXEL_TRY_VOID(AddTags(*Input.Tags, Conditions));
	}
	return Conditions;
}

/** What was found, best first. */
struct FFoundAssets
{
	int32 Total = 0;
	/** Those of the page that was asked for. */
	TArray<FAssetData> Page;
	/** Of the page's, when names were asked for. */
	TMap<FTopLevelAssetPath, double> Scores;
};

TArray<FAssetData> CutPage(const TArray<FAssetData>& Assets, const FSearchAssetsInput& Input)
{
	TArray<FAssetData> Page;
	for (int32 Index = Input.Offset; Index < Assets.Num() && Page.Num() < Input.Limit; ++Index)
	{
		Page.Add(Assets[Index]);
	}
	return Page;
}

/** The folders of all content but the engine's. */
TArray<FName> GetProjectRoots()
{
	TArray<FString> Roots;
	FPackageName::QueryRootContentPaths(Roots, false, false, true);
	TArray<FName> Names;
	for (const FString& Root : Roots)
	{
		if (!UVexelAssetIndexSubsystem::Get().IsEngineContent(FName(*Root)))
		{
			Names.Add(FName(*Root));
		}
	}
	return Names;
}

FFoundAssets FindByConditions(const FAssetConditions& Conditions, const FSearchAssetsInput& Input)
{
	FARFilter Filter = Conditions.Filter;
	if (Filter.PackagePaths.IsEmpty())
	{
		Filter.PackagePaths = GetProjectRoots();
		Filter.bRecursivePaths = true;
	}
	TArray<FAssetData> Assets;
	IAssetRegistry::GetChecked().GetAssets(Filter, Assets);
	Conditions.ApplyTags(Assets);
	return {Assets.Num(), CutPage(Assets, Input), {}};
}

FFoundAssets FindByName(const FString& Query, const FAssetConditions& Conditions, const FSearchAssetsInput& Input)
{
	const IAssetRegistry& Registry = IAssetRegistry::GetChecked();
	UVexelAssetIndexSubsystem& Index = UVexelAssetIndexSubsystem::Get();
	const bool bOfEngine = !Conditions.Filter.PackagePaths.IsEmpty() && Index.IsEngineContent(Conditions.Filter.PackagePaths[0]);
	const TArray<FVexelAssetNameIndex::FMatch> Matches = Index.GetNames(bOfEngine).Find(Query);
	// Without conditions nothing needs to be known of the matches before and behind the page.
	const bool bPageOnly = Conditions.IsEmpty();
	const int32 Begin = bPageOnly ? FMath::Min(Input.Offset, Matches.Num()) : 0;
	const int32 End = bPageOnly ? FMath::Min(Begin + Input.Limit, Matches.Num()) : Matches.Num();
	FFoundAssets Found;
	TArray<FAssetData> Assets;
	for (int32 Place = Begin; Place < End; ++Place)
	{
		const FVexelAssetNameIndex::FMatch& Match = Matches[Place];
		FAssetData Asset = Registry.GetAssetByObjectPath(FSoftObjectPath(Match.Path));
		if (Asset.IsValid())
		{
			Found.Scores.Add(Match.Path, Match.Score);
			Assets.Add(MoveTemp(Asset));
		}
	}
	Conditions.Apply(Assets);
	Found.Total = bPageOnly ? Matches.Num() : Assets.Num();
	Found.Page = bPageOnly ? MoveTemp(Assets) : CutPage(Assets, Input);
	return Found;
}

TSharedRef<FJsonObject> DescribeAsset(const FAssetData& Asset, const double* Score)
{
	const TSharedRef<FJsonObject> Row = MakeShared<FJsonObject>();
	VexelToolAsset::SetIdentity(*Row, Asset);
	if (Score)
	{
		Row->SetNumberField(TEXT("score"), FMath::RoundToInt(*Score));
	}
	return Row;
}
}

/** "search_assets": finds assets by name, class, folder and tags. */
class FVexelToolSearchAssets : public TVexelTool<FSearchAssetsInput>
{
public:
	using TVexelTool::TVexelTool;

protected:
	virtual TVexelTaskResult<TSharedRef<FJsonObject>> Run(const FVexelToolContext& Context, const FSearchAssetsInput& Input) const override
	{
		VEXEL_TRY(const FAssetConditions Conditions, ReadConditions(Input));
		const FFoundAssets Found = Input.Query ? FindByName(*Input.Query, Conditions, Input) : FindByConditions(Conditions, Input);
		TArray<TSharedPtr<FJsonValue>> Rows;
		for (const FAssetData& Asset : Found.Page)
		{
			const double* const Score = Found.Scores.Find(FTopLevelAssetPath(Asset.PackageName, Asset.AssetName));
			Rows.Add(MakeShared<FJsonValueObject>(DescribeAsset(Asset, Score)));
		}
		const TSharedRef<FJsonObject> Answer = MakeShared<FJsonObject>();
		Answer->SetNumberField(TEXT("total"), Found.Total);
		Answer->SetNumberField(TEXT("offset"), Input.Offset);
		if (Input.Offset + Rows.Num() < Found.Total && !Rows.IsEmpty())
		{
			Answer->SetNumberField(TEXT("next_offset"), Input.Offset + Rows.Num());
		}
		Answer->SetArrayField(TEXT("assets"), MoveTemp(Rows));
		return Answer;
	}
};

VEXEL_DEFINE_TOOL(FVexelToolSearchAssets)
