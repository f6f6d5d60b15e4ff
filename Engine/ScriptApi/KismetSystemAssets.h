// Package: /Script/Engine
#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "KismetSystemAssets.generated.h"

// Continues
UCLASS()
class ENGINE_API UKismetSystemLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** Object of a reference that does not load it by itself, or null while it is not loaded. */
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (DisplayName = "Resolve Soft Object Reference"))
	static UObject* Conv_SoftObjectReferenceToObject(const TSoftObjectPtr<UObject>& SoftObject);

	/** True if the reference names an object, loaded or not. */
	UFUNCTION(BlueprintPure, Category = "Utilities")
	static bool IsValidSoftObjectReference(const TSoftObjectPtr<UObject>& SoftObjectReference);

	/** True if the reference names a class, loaded or not. */
	UFUNCTION(BlueprintPure, Category = "Utilities")
	static bool IsValidSoftClassReference(const TSoftClassPtr<UObject>& SoftClassReference);

	/** Path of the object. */
	UFUNCTION(BlueprintPure, Category = "Utilities",
		meta = (DisplayName = "To String (SoftObjectReference)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FString Conv_SoftObjectReferenceToString(const TSoftObjectPtr<UObject>& SoftObjectReference);

	/** Path of the class. */
	UFUNCTION(BlueprintPure, Category = "Utilities",
		meta = (DisplayName = "To String (SoftClassReference)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FString Conv_SoftClassReferenceToString(const TSoftClassPtr<UObject>& SoftClassReference);

	/** True if both name the same object. */
	UFUNCTION(BlueprintPure, Category = "Utilities",
		meta = (DisplayName = "Equal (SoftObjectReference)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualEqual_SoftObjectReference(const TSoftObjectPtr<UObject>& A, const TSoftObjectPtr<UObject>& B);

	/** True if they name different objects. */
	UFUNCTION(BlueprintPure, Category = "Utilities",
		meta = (DisplayName = "Not Equal (SoftObjectReference)", CompactNodeTitle = "!=", Keywords = "!= not equal"))
	static bool NotEqual_SoftObjectReference(const TSoftObjectPtr<UObject>& A, const TSoftObjectPtr<UObject>& B);

	/** True if both name the same class. */
	UFUNCTION(BlueprintPure, Category = "Utilities",
		meta = (DisplayName = "Equal (SoftClassReference)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualEqual_SoftClassReference(const TSoftClassPtr<UObject>& A, const TSoftClassPtr<UObject>& B);

	/** True if they name different classes. */
	UFUNCTION(BlueprintPure, Category = "Utilities",
		meta = (DisplayName = "Not Equal (SoftClassReference)", CompactNodeTitle = "!=", Keywords = "!= not equal"))
	static bool NotEqual_SoftClassReference(const TSoftClassPtr<UObject>& A, const TSoftClassPtr<UObject>& B);

	/** A path of its text. */
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (Keywords = "construct build", NativeMakeFunc, BlueprintThreadSafe))
	static FSoftObjectPath MakeSoftObjectPath(const FString& PathString);

	/** The text of a path. */
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (Keywords = "break", NativeBreakFunc, BlueprintThreadSafe))
	static void BreakSoftObjectPath(FSoftObjectPath InSoftObjectPath, FString& PathString);

	/** The reference of a path. */
	UFUNCTION(BlueprintPure, Category = "Utilities",
		meta = (DisplayName = "To Soft Object Reference", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast,
			BlueprintThreadSafe))
	static TSoftObjectPtr<UObject> Conv_SoftObjPathToSoftObjRef(const FSoftObjectPath& SoftObjectPath);

	/** The path of a reference. */
	UFUNCTION(BlueprintPure, Category = "Utilities",
		meta = (DisplayName = "To Soft Object Path", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintThreadSafe))
	static FSoftObjectPath Conv_SoftObjRefToSoftObjPath(TSoftObjectPtr<UObject> SoftObjectReference);

	/** A path of its text. */
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (Keywords = "construct build", NativeMakeFunc, BlueprintThreadSafe))
	static FSoftClassPath MakeSoftClassPath(const FString& PathString);

	/** The text of a path. */
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (Keywords = "break", NativeBreakFunc, BlueprintThreadSafe))
	static void BreakSoftClassPath(FSoftClassPath InSoftClassPath, FString& PathString);

	/** The reference of a path. */
	UFUNCTION(BlueprintPure, Category = "Utilities",
		meta = (DisplayName = "To Soft Class Reference", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast,
			BlueprintThreadSafe))
	static TSoftClassPtr<UObject> Conv_SoftClassPathToSoftClassRef(const FSoftClassPath& SoftClassPath);

	/** A path of a package and an asset. */
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (Keywords = "construct build", NativeMakeFunc, BlueprintThreadSafe))
	static FTopLevelAssetPath MakeTopLevelAssetPath(const FString& PackageName, const FString& AssetName);

	/** The text of a path. */
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (Keywords = "construct build", NativeBreakFunc, BlueprintThreadSafe))
	static void BreakTopLevelAssetPath(const FTopLevelAssetPath& TopLevelAssetPath, FString& PathString);

	/** Class of a reference, or null while it is not loaded. */
	UFUNCTION(BlueprintPure, Category = "Utilities",
		meta = (DisplayName = "Resolve Soft Class Reference", DeterminesOutputType = "SoftClass", BlueprintAutocast))
	static UClass* Conv_SoftClassReferenceToClass(const TSoftClassPtr<UObject>& SoftClass);

	/** A reference that does not keep the object loaded. */
	UFUNCTION(BlueprintPure, Category = "Utilities",
		meta = (DisplayName = "To Soft Object Reference (Object)", CompactNodeTitle = "->", DeterminesOutputType = "Object",
			BlueprintAutocast))
	static TSoftObjectPtr<UObject> Conv_ObjectToSoftObjectReference(UObject* Object);

	/** A reference that does not keep the class loaded. */
	UFUNCTION(BlueprintPure, Category = "Utilities",
		meta = (DisplayName = "To Soft Class Reference (Class)", CompactNodeTitle = "->", DeterminesOutputType = "Class",
			BlueprintAutocast))
	static TSoftClassPtr<UObject> Conv_ClassToSoftClassReference(const TSubclassOf<UObject>& Class);

	/** True if the object is of the class or one derived from it. */
	UFUNCTION(BlueprintPure, Category = "Utilities")
	static bool IsObjectOfSoftClass(const UObject* Object, TSoftClassPtr<UObject> SoftClass);

	/** Path of a class. */
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (DisplayName = "Get Soft Class Path", BlueprintThreadSafe))
	static FSoftClassPath GetSoftClassPath(const UClass* Class);

	/** Path of an object. */
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (DisplayName = "Get Soft Object Path", BlueprintThreadSafe))
	static FSoftObjectPath GetSoftObjectPath(const UObject* Object);

	/** Path of a class's asset. */
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (DisplayName = "Get Class Top Level Asset Path"))
	static FTopLevelAssetPath GetClassTopLevelAssetPath(const UClass* Class);

	/** Path of a struct's asset. */
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (DisplayName = "Get Struct Top Level Asset Path"))
	static FTopLevelAssetPath GetStructTopLevelAssetPath(const UScriptStruct* Struct);

	/** Path of an enumeration's asset. */
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (DisplayName = "Get Enum Top Level Asset Path"))
	static FTopLevelAssetPath GetEnumTopLevelAssetPath(const UEnum* Enum);

	/** The value itself. */
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (DisplayName = "Make Literal Integer64", BlueprintThreadSafe))
	static int64 MakeLiteralInt64(int64 Value);

	/** The value itself. */
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (DisplayName = "Make Literal Integer", BlueprintThreadSafe))
	static int32 MakeLiteralInt(int32 Value);

	/** The value itself. */
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (BlueprintThreadSafe, DeprecatedFunction))
	static float MakeLiteralFloat(float Value);

	/** The value itself. */
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (BlueprintThreadSafe))
	static double MakeLiteralDouble(double Value);

	/** The value itself. */
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (BlueprintThreadSafe))
	static bool MakeLiteralBool(bool Value);

	/** The value itself. */
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (BlueprintThreadSafe))
	static FName MakeLiteralName(FName Value);

	/** The value itself. */
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (BlueprintThreadSafe))
	static uint8 MakeLiteralByte(uint8 Value);

	/** The value itself. */
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (BlueprintThreadSafe))
	static FString MakeLiteralString(FString Value);

	/** The value itself. */
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (BlueprintThreadSafe))
	static FText MakeLiteralText(FText Value);

	/** A primary asset, if it is loaded. */
	UFUNCTION(BlueprintPure, Category = "AssetManager")
	static UObject* GetObjectFromPrimaryAssetId(FPrimaryAssetId PrimaryAssetId);

	/** Class of a primary asset, if it is loaded. */
	UFUNCTION(BlueprintPure, Category = "AssetManager")
	static TSubclassOf<UObject> GetClassFromPrimaryAssetId(FPrimaryAssetId PrimaryAssetId);

	/** Reference of a primary asset. */
	UFUNCTION(BlueprintPure, Category = "AssetManager")
	static TSoftObjectPtr<UObject> GetSoftObjectReferenceFromPrimaryAssetId(FPrimaryAssetId PrimaryAssetId);

	/** Class reference of a primary asset. */
	UFUNCTION(BlueprintPure, Category = "AssetManager")
	static TSoftClassPtr<UObject> GetSoftClassReferenceFromPrimaryAssetId(FPrimaryAssetId PrimaryAssetId);

	/** Identifier of a primary asset. */
	UFUNCTION(BlueprintPure, Category = "AssetManager")
	static FPrimaryAssetId GetPrimaryAssetIdFromObject(UObject* Object);

	/** Identifier of a primary asset's class. */
	UFUNCTION(BlueprintPure, Category = "AssetManager")
	static FPrimaryAssetId GetPrimaryAssetIdFromClass(TSubclassOf<UObject> Class);

	/** Identifier of a primary asset. */
	UFUNCTION(BlueprintPure, Category = "AssetManager")
	static FPrimaryAssetId GetPrimaryAssetIdFromSoftObjectReference(TSoftObjectPtr<UObject> SoftObjectReference);

	/** Identifier of a primary asset's class. */
	UFUNCTION(BlueprintPure, Category = "AssetManager")
	static FPrimaryAssetId GetPrimaryAssetIdFromSoftClassReference(TSoftClassPtr<UObject> SoftClassReference);

	/** All primary assets of a type. */
	UFUNCTION(BlueprintCallable, Category = "AssetManager")
	static void GetPrimaryAssetIdList(FPrimaryAssetType PrimaryAssetType, TArray<FPrimaryAssetId>& OutPrimaryAssetIdList);

	/** True if the identifier names an asset. */
	UFUNCTION(BlueprintPure, Category = "AssetManager")
	static bool IsValidPrimaryAssetId(FPrimaryAssetId PrimaryAssetId);

	/** Text of an identifier. */
	UFUNCTION(BlueprintPure, Category = "AssetManager",
		meta = (DisplayName = "To String (PrimaryAssetId)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast,
			BlueprintThreadSafe))
	static FString Conv_PrimaryAssetIdToString(FPrimaryAssetId PrimaryAssetId);

	/** True if they are the same. */
	UFUNCTION(BlueprintPure, Category = "AssetManager",
		meta = (DisplayName = "Equal (PrimaryAssetId)", CompactNodeTitle = "==", Keywords = "== equal", BlueprintThreadSafe))
	static bool EqualEqual_PrimaryAssetId(FPrimaryAssetId A, FPrimaryAssetId B);

	/** True if they differ. */
	UFUNCTION(BlueprintPure, Category = "AssetManager",
		meta = (DisplayName = "Not Equal (PrimaryAssetId)", CompactNodeTitle = "!=", Keywords = "!= not equal", BlueprintThreadSafe))
	static bool NotEqual_PrimaryAssetId(FPrimaryAssetId A, FPrimaryAssetId B);

	/** True if the type is named. */
	UFUNCTION(BlueprintPure, Category = "AssetManager", meta = (BlueprintThreadSafe))
	static bool IsValidPrimaryAssetType(FPrimaryAssetType PrimaryAssetType);

	/** Text of a type. */
	UFUNCTION(BlueprintPure, Category = "AssetManager",
		meta = (DisplayName = "To String (PrimaryAssetType)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast,
			BlueprintThreadSafe))
	static FString Conv_PrimaryAssetTypeToString(FPrimaryAssetType PrimaryAssetType);

	/** True if they are the same. */
	UFUNCTION(BlueprintPure, Category = "AssetManager",
		meta = (DisplayName = "Equal (PrimaryAssetType)", CompactNodeTitle = "==", Keywords = "== equal", BlueprintThreadSafe))
	static bool EqualEqual_PrimaryAssetType(FPrimaryAssetType A, FPrimaryAssetType B);

	/** True if they differ. */
	UFUNCTION(BlueprintPure, Category = "AssetManager",
		meta = (DisplayName = "Not Equal (PrimaryAssetType)", CompactNodeTitle = "!=", Keywords = "!= not equal", BlueprintThreadSafe))
	static bool NotEqual_PrimaryAssetType(FPrimaryAssetType A, FPrimaryAssetType B);

	/** Lets go of a primary asset. */
	UFUNCTION(BlueprintCallable, Category = "AssetManager")
	static void UnloadPrimaryAsset(FPrimaryAssetId PrimaryAssetId);

	/** Lets go of primary assets. */
	UFUNCTION(BlueprintCallable, Category = "AssetManager")
	static void UnloadPrimaryAssetList(const TArray<FPrimaryAssetId>& PrimaryAssetIdList);

	/** Loaded bundles of a primary asset. */
	UFUNCTION(BlueprintPure, Category = "AssetManager")
	static bool GetCurrentBundleState(FPrimaryAssetId PrimaryAssetId, bool bForceCurrentState, TArray<FName>& OutBundles);

	/** Primary assets that have some bundles and not others. */
	UFUNCTION(BlueprintCallable, Category = "AssetManager")
	static void GetPrimaryAssetsWithBundleState(const TArray<FName>& RequiredBundles, const TArray<FName>& ExcludedBundles,
		const TArray<FPrimaryAssetType>& ValidTypes, bool bForceCurrentState, TArray<FPrimaryAssetId>& OutPrimaryAssetIdList);

	/** Sets a property by name. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Object", meta = (BlueprintInternalUseOnly = "true"))
	static void SetIntPropertyByName(UObject* Object, FName PropertyName, int32 Value);

	/** Sets a property by name. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Object", meta = (BlueprintInternalUseOnly = "true"))
	static void SetInt64PropertyByName(UObject* Object, FName PropertyName, int64 Value);

	/** Sets a property by name. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Object", meta = (BlueprintInternalUseOnly = "true"))
	static void SetBytePropertyByName(UObject* Object, FName PropertyName, uint8 Value);

	/** Sets a property by name. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Object", meta = (BlueprintInternalUseOnly = "true"))
	static void SetDoublePropertyByName(UObject* Object, FName PropertyName, double Value);

	/** Sets a property by name. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Object", meta = (BlueprintInternalUseOnly = "true"))
	static void SetBoolPropertyByName(UObject* Object, FName PropertyName, bool Value);

	/** Sets a property by name. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Object", meta = (BlueprintInternalUseOnly = "true"))
	static void SetObjectPropertyByName(UObject* Object, FName PropertyName, UObject* Value);

	/** Sets a property by name. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Object", meta = (BlueprintInternalUseOnly = "true"))
	static void SetClassPropertyByName(UObject* Object, FName PropertyName, TSubclassOf<UObject> Value);

	/** Sets a property by name. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Object", meta = (BlueprintInternalUseOnly = "true", AutoCreateRefTerm = "Value"))
	static void SetNamePropertyByName(UObject* Object, FName PropertyName, const FName& Value);

	/** Sets a property by name. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Object", meta = (BlueprintInternalUseOnly = "true", AutoCreateRefTerm = "Value"))
	static void SetSoftObjectPropertyByName(UObject* Object, FName PropertyName, const TSoftObjectPtr<UObject>& Value);

	/** Sets a property by name. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Object", meta = (BlueprintInternalUseOnly = "true", AutoCreateRefTerm = "Value"))
	static void SetSoftClassPropertyByName(UObject* Object, FName PropertyName, const TSoftClassPtr<UObject>& Value);

	/** Sets a property by name. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Object", meta = (BlueprintInternalUseOnly = "true", AutoCreateRefTerm = "Value"))
	static void SetStringPropertyByName(UObject* Object, FName PropertyName, const FString& Value);

	/** Sets a property by name. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Object", meta = (BlueprintInternalUseOnly = "true", AutoCreateRefTerm = "Value"))
	static void SetTextPropertyByName(UObject* Object, FName PropertyName, const FText& Value);

	/** Sets a property by name. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Object", meta = (BlueprintInternalUseOnly = "true", AutoCreateRefTerm = "Value"))
	static void SetVectorPropertyByName(UObject* Object, FName PropertyName, const FVector& Value);

	/** Sets a property by name. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Object", meta = (BlueprintInternalUseOnly = "true", AutoCreateRefTerm = "Value"))
	static void SetVector3fPropertyByName(UObject* Object, FName PropertyName, const FVector3f& Value);

	/** Sets a property by name. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Object", meta = (BlueprintInternalUseOnly = "true", AutoCreateRefTerm = "Value"))
	static void SetRotatorPropertyByName(UObject* Object, FName PropertyName, const FRotator& Value);

	/** Sets a property by name. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Object", meta = (BlueprintInternalUseOnly = "true", AutoCreateRefTerm = "Value"))
	static void SetLinearColorPropertyByName(UObject* Object, FName PropertyName, const FLinearColor& Value);

	/** Sets a property by name. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Object", meta = (BlueprintInternalUseOnly = "true", AutoCreateRefTerm = "Value"))
	static void SetColorPropertyByName(UObject* Object, FName PropertyName, const FColor& Value);

	/** Sets a property by name. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Object", meta = (BlueprintInternalUseOnly = "true", AutoCreateRefTerm = "Value"))
	static void SetTransformPropertyByName(UObject* Object, FName PropertyName, const FTransform& Value);

	/** Sets a property by name. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Object", meta = (BlueprintInternalUseOnly = "true", AutoCreateRefTerm = "Value"))
	static void SetCollisionProfileNameProperty(UObject* Object, FName PropertyName, const FCollisionProfileName& Value);

	/** Sets a property by name. */
	UFUNCTION(BlueprintCallable, CustomThunk, Category = "Utilities|Object",
		meta = (BlueprintInternalUseOnly = "true", CustomStructureParam = "Value", AutoCreateRefTerm = "Value"))
	static void SetStructurePropertyByName(UObject* Object, FName PropertyName, const FGenericStruct& Value);
};
