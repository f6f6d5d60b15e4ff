// Package: /Script/Engine
#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "KismetInternationalizationLibrary.generated.h"

/** Whose texts. */
UENUM(BlueprintType)
enum class ELocalizedTextSourceCategory : uint8
{
	Game,
	Engine,
	Editor
};

/** Languages and countries. */
UCLASS(meta = (BlueprintThreadSafe))
class ENGINE_API UKismetInternationalizationLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** Sets language and country. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Internationalization", meta = (AdvancedDisplay = "SaveToConfig"))
	static bool SetCurrentCulture(const FString& Culture, const bool SaveToConfig = false);

	/** Language and country. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Internationalization")
	static FString GetCurrentCulture();

	/** Sets the language. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Internationalization", meta = (AdvancedDisplay = "SaveToConfig"))
	static bool SetCurrentLanguage(const FString& Culture, const bool SaveToConfig = false);

	/** Language. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Internationalization")
	static FString GetCurrentLanguage();

	/** Sets the country, which says how numbers and dates are written. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Internationalization", meta = (AdvancedDisplay = "SaveToConfig"))
	static bool SetCurrentLocale(const FString& Culture, const bool SaveToConfig = false);

	/** Country. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Internationalization")
	static FString GetCurrentLocale();

	/** Sets language and country. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Internationalization",
		meta = (DisplayName = "Set Current Language & Locale", AdvancedDisplay = "SaveToConfig"))
	static bool SetCurrentLanguageAndLocale(const FString& Culture, const bool SaveToConfig = false);

	/** Sets the language of a group of assets. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Internationalization", meta = (AdvancedDisplay = "SaveToConfig"))
	static bool SetCurrentAssetGroupCulture(const FName AssetGroup, const FString& Culture, const bool SaveToConfig = false);

	/** Language of a group of assets. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Internationalization")
	static FString GetCurrentAssetGroupCulture(const FName AssetGroup);

	/** Lets a group of assets follow the language again. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Internationalization", meta = (AdvancedDisplay = "SaveToConfig"))
	static void ClearCurrentAssetGroupCulture(const FName AssetGroup, const bool SaveToConfig = false);

	/** Language that texts are written in. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Internationalization")
	static FString GetNativeCulture(const ELocalizedTextSourceCategory TextCategory);

	/** Languages that there are translations for. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Internationalization")
	static TArray<FString> GetLocalizedCultures(const bool IncludeGame = true, const bool IncludeEngine = false,
		const bool IncludeEditor = false, const bool IncludeAdditional = false);

	/** The language that fits best. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Internationalization", meta = (AdvancedDisplay = "FallbackCulture"))
	static FString GetSuitableCulture(
		const TArray<FString>& AvailableCultures, const FString& CultureToMatch, const FString& FallbackCulture = TEXT("en"));

	/** Name of a language for people. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Internationalization", meta = (AdvancedDisplay = "Localized"))
	static FString GetCultureDisplayName(const FString& Culture, const bool Localized = true);
};
