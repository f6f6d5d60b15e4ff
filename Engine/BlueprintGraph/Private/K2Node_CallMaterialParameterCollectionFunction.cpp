#include "K2Node_CallMaterialParameterCollectionFunction.h"

#include "UObject/Class.h"
#include "UObject/UnrealType.h"

UObject* UK2Node_CallMaterialParameterCollectionFunction::GetCollection() const
{
	const UEdGraphPin* const Pin = FindPin(TEXT("Collection"), EGPD_Input);
	return Pin && Pin->LinkedTo.Num() == 0 ? Pin->DefaultObject.Get() : nullptr;
}

TArray<FName> UK2Node_CallMaterialParameterCollectionFunction::GetParameterNames() const
{
	TArray<FName> Names;
	const UObject* const Collection = GetCollection();
	for (const TCHAR* const List : {TEXT("ScalarParameters"), TEXT("VectorParameters")})
	{
		const FArrayProperty* const Array = Collection ? FindFProperty<FArrayProperty>(Collection->GetClass(), List) : nullptr;
		const FStructProperty* const Parameter = Array ? CastField<FStructProperty>(Array->Inner) : nullptr;
		const FNameProperty* const Name = Parameter ? FindFProperty<FNameProperty>(Parameter->Struct, TEXT("ParameterName")) : nullptr;
		if (!Name)
		{
			continue;
		}
		FScriptArrayHelper_InContainer Helper(Array, Collection);
		for (int32 Index = 0; Index < Helper.Num(); ++Index)
		{
			Names.Add(Name->GetPropertyValue_InContainer(Helper.GetRawPtr(Index)));
		}
	}
	return Names;
}
