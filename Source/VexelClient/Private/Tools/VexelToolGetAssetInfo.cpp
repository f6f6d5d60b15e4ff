#include "AssetRegistry/IAssetRegistry.h"
#include "HAL/FileManager.h"
#include "IImageWrapperModule.h"
#include "Misc/Char.h"
#include "Misc/PackageName.h"
#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"
#include "ObjectTools.h"
#include "Tools/VexelTool.h"
#include "Tools/VexelToolAsset.h"
#include "Tools/VexelToolJson.h"
#include "Tools/VexelToolSchema.h"
#include "UObject/Package.h"

namespace
{
constexpr int32 MaxTagLength = 1024;
constexpr int32 MaxRelations = 200;

struct FGetAssetInfoInput
{
	FString Asset;

	static const TVexelToolSchema<FGetAssetInfoInput>& GetSchema()
	{
		static const TVexelToolSchema<FGetAssetInfoInput> Schema =
			TVexelToolSchema<FGetAssetInfoInput>().Required(TEXT("asset"), &FGetAssetInfoInput::Asset, {.bNotEmpty = true});
		return Schema;
	}
};

/** Where the package lies below the project's folder; empty for one outside it. */
FString GetFileInProject(const FString& File)
{
	FString Relative = FPaths::ConvertRelativePathToFull(File);
	const FString ProjectDir = FPaths::ConvertRelativePathToFull(FPaths::ProjectDir());
	return FPaths::IsUnderDirectory(Relative, ProjectDir) && FPaths::MakePathRelativeTo(Relative, *ProjectDir) ? Relative : FString();
}

void SetFile(FJsonObject& Object, const FString& File)
{
	const FFileStatData Stat = IFileManager::Get().GetStatData(*File);
	VexelToolJson::SetStringUnlessEmpty(Object, TEXT("file"), GetFileInProject(File));
	Object.SetNumberField(TEXT("size"), double(Stat.FileSize));
	Object.SetStringField(TEXT("modified"), Stat.ModificationTime.ToIso8601());
}

/** Some tags hold data of the editor's own, as characters. */
bool IsText(const FString& Value)
{
	for (const TCHAR Character : Value)
	{
		if (Character < TEXT(' ') && !FChar::IsWhitespace(Character))
		{
			return false;
		}
	}
	return true;
}

void SetTags(FJsonObject& Object, const FAssetData& Asset)
{
	const TSharedRef<FJsonObject> Tags = MakeShared<FJsonObject>();
	const FAssetDataTagMap Values = Asset.TagsAndValues.CopyMap();
	for (const TPair<FName, FString>& Tag : Values)
	{
		if (!IsText(Tag.Value))
		{
			continue;
		}
		const bool bCut = Tag.Value.Len() > MaxTagLength;
		Tags->SetStringField(Tag.Key.ToString(), bCut ? Tag.Value.Left(MaxTagLength) + TEXT("...") : Tag.Value);
	}
	Object.SetObjectField(TEXT("tags"), Tags);
}

void SetRelations(FJsonObject& Object, const TCHAR* Name, const TArray<FAssetDependency>& Relations)
{
	using UE::AssetRegistry::EDependencyProperty;
	TArray<FString> Hard;
	TArray<FString> Soft;
	for (const FAssetDependency& Relation : Relations)
	{
		TArray<FString>& Kind = EnumHasAnyFlags(Relation.Properties, EDependencyProperty::Hard) ? Hard : Soft;
		Kind.Add(Relation.AssetId.PackageName.ToString());
	}
	Hard.Sort();
	Soft.Sort();
	const TSharedRef<FJsonObject> Kinds = MakeShared<FJsonObject>();
	VexelToolJson::SetStrings(*Kinds, TEXT("hard"), Hard, MaxRelations);
	VexelToolJson::SetStrings(*Kinds, TEXT("soft"), Soft, MaxRelations);
	Object.SetObjectField(Name, Kinds);
}

const TCHAR* GetFormatName(EImageFormat Format)
{
	switch (Format)
	{
		case EImageFormat::PNG:
			return TEXT("png");
		case EImageFormat::JPEG:
			return TEXT("jpeg");
		default:
			return TEXT("unknown");
	}
}

void SetThumbnail(FJsonObject& Object, const FAssetData& Asset, const FString& File)
{
	const FName FullName(*FString::Printf(TEXT("%s %s"), *Asset.AssetClassPath.GetAssetName().ToString(), *Asset.GetObjectPathString()));
	FThumbnailMap Thumbnails;
	if (!ThumbnailTools::LoadThumbnailsFromPackage(File, {FullName}, Thumbnails) || Thumbnails.IsEmpty())
	{
		return;
	}
	const FObjectThumbnail& Thumbnail = Thumbnails[FullName];
	const TArray<uint8>& Image = Thumbnail.AccessCompressedImageData();
	IImageWrapperModule& ImageWrapper = FModuleManager::LoadModuleChecked<IImageWrapperModule>(TEXT("ImageWrapper"));
	const TSharedRef<FJsonObject> Row = MakeShared<FJsonObject>();
	Row->SetNumberField(TEXT("width"), Thumbnail.GetImageWidth());
	Row->SetNumberField(TEXT("height"), Thumbnail.GetImageHeight());
	Row->SetStringField(TEXT("format"), GetFormatName(ImageWrapper.DetectImageFormat(Image.GetData(), Image.Num())));
	Row->SetNumberField(TEXT("size"), Image.Num());
	Object.SetObjectField(TEXT("thumbnail"), Row);
}
}

/** "get_asset_info": what is known of one asset, without loading it. */
class FVexelToolGetAssetInfo : public TVexelTool<FGetAssetInfoInput>
{
public:
	using TVexelTool::TVexelTool;

protected:
	virtual TVexelTaskResult<TSharedRef<FJsonObject>> Run(const FVexelToolContext& Context, const FGetAssetInfoInput& Input) const override
	{
		VEXEL_TRY(const FAssetData Asset, VexelToolAsset::Find(Input.Asset));
		const IAssetRegistry& Registry = IAssetRegistry::GetChecked();
		const FString PackageName = Asset.PackageName.ToString();
		const UPackage* const Package = FindPackage(nullptr, *PackageName);
		FString File;
		const bool bSaved = FPackageName::DoesPackageExist(PackageName, &File);
		TArray<FAssetDependency> Dependencies;
		TArray<FAssetDependency> Referencers;
		Registry.GetDependencies(FAssetIdentifier(Asset.PackageName), Dependencies, UE::AssetRegistry::EDependencyCategory::Package);
		Registry.GetReferencers(FAssetIdentifier(Asset.PackageName), Referencers, UE::AssetRegistry::EDependencyCategory::Package);

		const TSharedRef<FJsonObject> Answer = MakeShared<FJsonObject>();
		VexelToolAsset::SetIdentity(*Answer, Asset);
		Answer->SetStringField(TEXT("class_path"), Asset.AssetClassPath.ToString());
		Answer->SetStringField(TEXT("package"), PackageName);
		if (bSaved)
		{
			SetFile(*Answer, File);
		}
		Answer->SetBoolField(TEXT("loaded"), Asset.IsAssetLoaded());
		Answer->SetBoolField(TEXT("unsaved"), !bSaved || (Package && Package->IsDirty()));
		SetTags(*Answer, Asset);
		SetRelations(*Answer, TEXT("dependencies"), Dependencies);
		SetRelations(*Answer, TEXT("referencers"), Referencers);
		if (bSaved)
		{
			SetThumbnail(*Answer, Asset, File);
		}
		return Answer;
	}
};

VEXEL_DEFINE_TOOL(FVexelToolGetAssetInfo)
