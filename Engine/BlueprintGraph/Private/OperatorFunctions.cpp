#include "OperatorFunctions.h"

#include "EdGraphSchema_K2.h"
#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

namespace
{
/** Libraries that hold the functions behind the operators. */
const TCHAR* const OperatorLibraries[] = {TEXT("/Script/Engine.KismetMathLibrary"), TEXT("/Script/Engine.KismetStringLibrary"),
	TEXT("/Script/Engine.KismetTextLibrary"), TEXT("/Script/Engine.KismetInputLibrary")};
}

FName FOperatorFunctions::GetToleranceName()
{
	static const FName Name(TEXT("ErrorTolerance"));
	return Name;
}

FName FOperatorFunctions::GetOperation(const FName FunctionName)
{
	FString Operation;
	FString Types;
	return FunctionName.ToString().Split(TEXT("_"), &Operation, &Types) ? FName(*Operation) : FunctionName;
}

bool FOperatorFunctions::IsPromotable(const UFunction& Function)
{
	static const TSet<FName> Operations = {TEXT("Add"), TEXT("Subtract"), TEXT("Multiply"), TEXT("Divide"), TEXT("Greater"), TEXT("GreaterEqual"), TEXT("Less"),
		TEXT("LessEqual"), TEXT("EqualEqual"), TEXT("NotEqual")};
	static const FName MathLibrary(TEXT("KismetMathLibrary"));
	const UClass* const Library = Function.GetOwnerClass();
	const FName Operation = GetOperation(Function.GetFName());
	return Library && Library->GetFName() == MathLibrary && Operation != Function.GetFName() && Operations.Contains(Operation);
}

const TArray<TWeakObjectPtr<UFunction>>& FOperatorFunctions::FindAll(const FName Operation)
{
	static TMap<FName, TArray<TWeakObjectPtr<UFunction>>> FunctionsOfOperation;
	if (const TArray<TWeakObjectPtr<UFunction>>* const Known = FunctionsOfOperation.Find(Operation))
	{
		return *Known;
	}
	TArray<TWeakObjectPtr<UFunction>>& Functions = FunctionsOfOperation.Add(Operation);
	for (const TCHAR* const Path : OperatorLibraries)
	{
		UClass* const Library = FindObject<UClass>(nullptr, Path);
		for (TFieldIterator<UFunction> Function(Library, EFieldIterationFlags::None); Library && Function; ++Function)
		{
			if (GetOperation(Function->GetFName()) == Operation && Function->HasAnyFunctionFlags(FUNC_BlueprintPure))
			{
				Functions.Add(*Function);
			}
		}
	}
	return Functions;
}

int32 FOperatorFunctions::CountPromotions(const FEdGraphPinType& Value, const FEdGraphPinType& Parameter)
{
	using Schema = UEdGraphSchema_K2;
	if (Value.ContainerType != Parameter.ContainerType)
	{
		return -1;
	}
	if (Value.PinCategory == Parameter.PinCategory)
	{
		const bool bSameObject = Value.PinSubCategoryObject == Parameter.PinSubCategoryObject;
		return bSameObject || GetDefault<Schema>()->ArePinTypesCompatible(Value, Parameter) ? (bSameObject ? 0 : 1) : -1;
	}
	static const TMap<FName, TArray<FName>> Promotions = {
		{Schema::PC_Byte, {Schema::PC_Int, Schema::PC_Int64, Schema::PC_Real}},
		{Schema::PC_Int, {Schema::PC_Int64, Schema::PC_Real}},
		{Schema::PC_Int64, {Schema::PC_Real}},
	};
	const TArray<FName>* const Steps = Promotions.Find(Value.PinCategory);
	const int32 Step = Steps && !Value.PinSubCategoryObject.IsValid() ? Steps->IndexOfByKey(Parameter.PinCategory) : INDEX_NONE;
	return Step == INDEX_NONE ? -1 : Step + 1;
}

TArray<FEdGraphPinType> FOperatorFunctions::GetTypes(const UFunction& Function, int32& OutOperands)
{
	TArray<FEdGraphPinType> Types;
	FEdGraphPinType Result;
	for (TFieldIterator<FProperty> Parameter(&Function); Parameter && Parameter->HasAnyPropertyFlags(CPF_Parm); ++Parameter)
	{
		FEdGraphPinType Type;
		GetDefault<UEdGraphSchema_K2>()->ConvertPropertyToPinType(*Parameter, Type);
		Type.bIsReference = false;
		Type.bIsConst = false;
		if (Parameter->HasAnyPropertyFlags(CPF_ReturnParm))
		{
			Result = Type;
		}
		else if (Parameter->GetFName() != GetToleranceName() &&
			(!Parameter->HasAnyPropertyFlags(CPF_OutParm) || Parameter->HasAnyPropertyFlags(CPF_ReferenceParm)))
		{
			Types.Add(Type);
		}
	}
	OutOperands = Types.Num();
	Types.Add(Result);
	return Types;
}

UFunction* FOperatorFunctions::FindBest(FName Operation, const TArray<FEdGraphPinType>& Operands, const FEdGraphPinType& Result)
{
	const auto IsOpen = [](const FEdGraphPinType& Type)
	{ return Type.PinCategory == UEdGraphSchema_K2::PC_Wildcard || Type.PinCategory.IsNone(); };
	// A step of promotion outweighs what is only a matter of habit.
	constexpr int32 StepWeight = 8;
	const bool bResultDecides = !IsOpen(Result) && !Operands.ContainsByPredicate([&IsOpen](const FEdGraphPinType& Type)
													   { return !IsOpen(Type); });
	UFunction* Best = nullptr;
	int32 BestCost = MAX_int32;
	for (const TWeakObjectPtr<UFunction>& Candidate : FindAll(Operation))
	{
		int32 NumOperands = 0;
		const TArray<FEdGraphPinType> Types = Candidate.IsValid() ? GetTypes(*Candidate, NumOperands) : TArray<FEdGraphPinType>();
		const bool bTakesAll = NumOperands == Operands.Num() || (NumOperands == 2 && Operands.Num() > 2);
		int32 Cost = bTakesAll ? 0 : -1;
		const auto Pay = [&Cost](const int32 More)
		{ Cost = Cost < 0 || More < 0 ? -1 : Cost + More; };
		for (int32 Index = 0; Index < Operands.Num() && Cost >= 0; ++Index)
		{
			const FEdGraphPinType& Parameter = Types[FMath::Min(Index, NumOperands - 1)];
			// Where nothing is given, operands of one kind are what a user expects: "vector times vector" before "vector times number".
			Pay(IsOpen(Operands[Index]) ? (Parameter == Types[0] ? 0 : 1) : CountPromotions(Operands[Index], Parameter) * StepWeight);
		}
		if (bResultDecides && Cost >= 0)
		{
			Pay(CountPromotions(Types.Last(), Result) * StepWeight);
		}
		if (Cost >= 0 && Cost < BestCost)
		{
			Best = Candidate.Get();
			BestCost = Cost;
		}
	}
	return Best;
}
