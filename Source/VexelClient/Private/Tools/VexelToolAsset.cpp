#include "Tools/VexelToolAsset.h"

#include "AssetRegistry/IAssetRegistry.h"
#include "Dom/JsonObject.h"
#include "Misc/PackageName.h"
#include "VexelErrorKinds.h"

TVexelExpected<FAssetData> VexelToolAsset::Find(const FString& Path)
{
	const FString ObjectPath = FPackageName::ExportTextPathToObjectPath(Path);
	const FString PackageName = FPackageName::ObjectPathToPackageName(ObjectPath);
	const FString ObjectName = ObjectPath == PackageName ? FPackageName::GetShortName(PackageName) : ObjectPath.Mid(PackageName.Len() + 1);
	int32 Place = INDEX_NONE;
	const bool bInner = ObjectName.FindChar(TEXT('.'), Place) || ObjectName.FindChar(TEXT(':'), Place);
	if (bInner || ObjectPath.Len() >= NAME_SIZE || !FPackageName::IsValidLongPackageName(PackageName, true))
	{
		return VEXEL_ERROR(FVexelError_ToolInvalidInput, "'%s' is not the path of an asset: it must be like '/Game/Doors/BP_Door'", *Path.Left(NAME_SIZE));
	}
	const FAssetData Asset =
		IAssetRegistry::GetChecked().GetAssetByObjectPath(FSoftObjectPath(FName(*PackageName), FName(*ObjectName)));
	if (Asset.IsValid())
	{
		return Asset;
	}
	TArray<FAssetData> Others;
	FString File;
	if (!IAssetRegistry::GetChecked().GetAssetsByPackageName(FName(*PackageName), Others) && FPackageName::DoesPackageExist(PackageName, &File))
	{
		return VEXEL_ERROR(FVexelError_ToolCallFailed, "The file of the package '%s' has no asset that can be read; it may be damaged", *PackageName);
	}
	return VEXEL_ERROR(FVexelError_ToolInvalidInput, "There is no asset '%s'; `search_assets` finds assets by their names", *Path);
}

void VexelToolAsset::SetIdentity(FJsonObject& Object, const FAssetData& Asset)
{
	Object.SetStringField(TEXT("path"), Asset.GetObjectPathString());
	Object.SetStringField(TEXT("name"), Asset.AssetName.ToString());
	Object.SetStringField(TEXT("class"), Asset.AssetClassPath.GetAssetName().ToString());
	FString ParentClass;
	if (Asset.GetTagValue(TEXT("ParentClass"), ParentClass) && ParentClass != TEXT("None"))
	{
		const FString ParentPath = FPackageName::ExportTextPathToObjectPath(ParentClass);
		Object.SetStringField(TEXT("parent_class"), FPackageName::ObjectPathToObjectName(ParentPath));
	}
}
