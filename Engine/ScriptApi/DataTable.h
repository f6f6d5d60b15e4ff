// Package: /Script/Engine
#pragma once

#include "CoreMinimal.h"
#include "DataTable.generated.h"

/** A row of a table. */
USTRUCT(BlueprintType)
struct FTableRowBase
{
	GENERATED_BODY()
};

/** A row of a table. */
USTRUCT(BlueprintType)
struct FDataTableRowHandle
{
	GENERATED_BODY()

	/** Table. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "DataTableRowHandle")
	TObjectPtr<UDataTable> DataTable;

	/** Name of the row. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "DataTableRowHandle")
	FName RowName;
};

/** A curve of a table. */
USTRUCT(BlueprintType)
struct FCurveTableRowHandle
{
	GENERATED_BODY()

	/** Table. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "CurveTableRowHandle")
	TObjectPtr<UCurveTable> CurveTable;

	/** Name of the row. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "CurveTableRowHandle")
	FName RowName;
};

/** Rows of a table that have a value in a column. */
USTRUCT(BlueprintType)
struct FDataTableCategoryHandle
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "DataTableCategoryHandle")
	TObjectPtr<UDataTable> DataTable;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "DataTableCategoryHandle")
	FName ColumnName;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "DataTableCategoryHandle")
	FName RowContents;
};

/** A table of rows of one struct. */
UCLASS(BlueprintType, AutoExpandCategories = "DataTable,ImportOptions")
class ENGINE_API UDataTable : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "DataTable")
	TObjectPtr<UScriptStruct> RowStruct;

	UPROPERTY(EditAnywhere, Category = "DataTable")
	bool bStripFromClientBuilds;

	UPROPERTY(EditAnywhere, Category = "DataTable")
	bool bIgnoreExtraFields;

	UPROPERTY(EditAnywhere, Category = "DataTable")
	bool bIgnoreMissingFields;
};

/** A table of curves. */
UCLASS(BlueprintType)
class ENGINE_API UCurveTable : public UObject
{
	GENERATED_BODY()
};

/** A table of texts. */
UCLASS(BlueprintType)
class ENGINE_API UStringTable : public UObject
{
	GENERATED_BODY()
};
