// Package: /Script/Engine
#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "DataTableFunctionLibrary.generated.h"

/** Whether a curve is there. */
UENUM(BlueprintType)
namespace EEvaluateCurveTableResult
{
enum Type : int
{
	RowFound,
	RowNotFound
};
}

/** Rows of tables. */
UCLASS(BlueprintType, meta = (ScriptName = "DataTableLibrary"))
class ENGINE_API UDataTableFunctionLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** Value of a curve of a table. */
	UFUNCTION(BlueprintCallable, Category = "DataTable", meta = (ExpandEnumAsExecs = "OutResult"))
	static void EvaluateCurveTableRow(UCurveTable* CurveTable, FName RowName, float InXY,
		TEnumAsByte<EEvaluateCurveTableResult::Type>& OutResult, float& OutXY, const FString& ContextString);

	/** True if the row is there. */
	UFUNCTION(BlueprintPure, Category = "DataTable")
	static bool DoesDataTableRowExist(const UDataTable* Table, FName RowName);

	/** Names of all rows. */
	UFUNCTION(BlueprintCallable, Category = "DataTable")
	static void GetDataTableRowNames(const UDataTable* Table, TArray<FName>& OutRowNames);

	/** Texts of a column. */
	UFUNCTION(BlueprintPure, Category = "DataTable")
	static TArray<FString> GetDataTableColumnAsString(const UDataTable* DataTable, FName PropertyName);

	/** A row by name; false if it is not there. */
	UFUNCTION(
		BlueprintCallable, CustomThunk, Category = "DataTable", meta = (CustomStructureParam = "OutRow", BlueprintInternalUseOnly = "true"))
	static bool GetDataTableRowFromName(UDataTable* Table, FName RowName, FTableRowBase& OutRow);

	/** Fills a table with comma-separated rows, in the editor. */
	UFUNCTION(BlueprintCallable, Category = "DataTable", meta = (DisplayName = "Fill Data Table from CSV String", DevelopmentOnly))
	static bool FillDataTableFromCSVString(UDataTable* DataTable, const FString& CSVString);

	/** Fills a table with a file of comma-separated rows, in the editor. */
	UFUNCTION(BlueprintCallable, Category = "DataTable", meta = (DisplayName = "Fill Data Table from CSV File", DevelopmentOnly))
	static bool FillDataTableFromCSVFile(UDataTable* DataTable, const FString& CSVFilePath);

	/** Fills a table with a JSON text, in the editor. */
	UFUNCTION(BlueprintCallable, Category = "DataTable", meta = (DisplayName = "Fill Data Table from JSON String", DevelopmentOnly))
	static bool FillDataTableFromJSONString(UDataTable* DataTable, const FString& JSONString);

	/** Fills a table with a JSON file, in the editor. */
	UFUNCTION(BlueprintCallable, Category = "DataTable", meta = (DisplayName = "Fill Data Table from JSON File", DevelopmentOnly))
	static bool FillDataTableFromJSONFile(UDataTable* DataTable, const FString& JSONFilePath);
};
