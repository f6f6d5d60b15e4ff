#include "EdGraphSchema_K2.h"

#include "BlueprintEditorSettings.h"
#include "K2Node_CallFunction.h"
#include "K2Node_CastByteToEnum.h"
#include "K2Node_ClassDynamicCast.h"
#include "K2Node_ConvertAsset.h"
#include "K2Node_GetEnumeratorName.h"
#include "K2Node_GetEnumeratorNameAsString.h"
#include "K2Node_MakeArray.h"
#include "K2Node_VariableGet.h"
#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectIterator.h"
#include "UObject/UnrealType.h"

namespace
{
using Schema = UEdGraphSchema_K2;

// Functions

/** What a conversion function is found by: the kind of value that it takes or gives. */
struct FValueKind
{
	FName Category;
	FName SubCategory;
	const UObject* Object = nullptr;
	EPinContainerType Container = EPinContainerType::None;

	bool operator==(const FValueKind& Other) const = default;
	friend uint32 GetTypeHash(const FValueKind& Kind)
	{
		return HashCombine(HashCombine(GetTypeHash(Kind.Category), GetTypeHash(Kind.SubCategory)),
			HashCombine(GetTypeHash(Kind.Object), static_cast<uint32>(Kind.Container)));
	}
};

using FConversionKey = TPair<FValueKind, FValueKind>;

FValueKind GetKind(const FEdGraphPinType& Type)
{
	return {Type.PinCategory, Type.PinSubCategory, Type.PinSubCategoryObject.Get(), Type.ContainerType};
}

bool RefersToObject(const FName Category)
{
	return Category == Schema::PC_Object || Category == Schema::PC_Class || Category == Schema::PC_SoftObject ||
		Category == Schema::PC_SoftClass;
}

bool IsNumber(const FName Category)
{
	return Category == Schema::PC_Int || Category == Schema::PC_Int64 || Category == Schema::PC_Real;
}

/** The kind itself, and then those whose functions serve it as well. */
TArray<FValueKind> GetServingKinds(const FEdGraphPinType& Type)
{
	const FValueKind Kind = GetKind(Type);
	TArray<FValueKind> Kinds = {Kind};
	if (Kind.Category == Schema::PC_Real)
	{
		// The call converts the precision of a number itself.
		Kinds.Add(Kind);
		Kinds.Last().SubCategory = Kind.SubCategory == Schema::PC_Double ? Schema::PC_Float : Schema::PC_Double;
	}
	if (RefersToObject(Kind.Category))
	{
		Kinds.Add({Kind.Category, NAME_None, UObject::StaticClass(), Kind.Container});
	}
	return Kinds;
}

const FProperty* GetFirstInput(const UFunction& Function)
{
	for (TFieldIterator<FProperty> Parameter(&Function); Parameter && Parameter->HasAnyPropertyFlags(CPF_Parm); ++Parameter)
	{
		if (!Parameter->HasAnyPropertyFlags(CPF_ReturnParm))
		{
			return *Parameter;
		}
	}
	return nullptr;
}

TMap<FConversionKey, TWeakObjectPtr<UFunction>> FindConversions()
{
	TMap<FConversionKey, TWeakObjectPtr<UFunction>> Conversions;
	const UEdGraphSchema_K2* const K2Schema = GetDefault<UEdGraphSchema_K2>();
	for (TObjectIterator<UFunction> Iterator; Iterator; ++Iterator)
	{
		UFunction* const Function = *Iterator;
		const FProperty* const Result = Function->GetReturnProperty();
		const bool bConverts = Result && Function->HasAllFunctionFlags(FUNC_Static | FUNC_BlueprintPure) &&
			Function->HasMetaData(FBlueprintMetadata::MD_BlueprintAutocast);
		const FProperty* const Source = bConverts ? GetFirstInput(*Function) : nullptr;
		FEdGraphPinType From;
		FEdGraphPinType To;
		if (!Source || !K2Schema->ConvertPropertyToPinType(Source, From) || !K2Schema->ConvertPropertyToPinType(Result, To))
		{
			continue;
		}
		// Where two do the same, the choice must not follow the order in which they were declared.
		TWeakObjectPtr<UFunction>& Known = Conversions.FindOrAdd({GetKind(From), GetKind(To)});
		if (!Known.IsValid() || Function->GetName() < Known->GetName())
		{
			Known = Function;
		}
	}
	return Conversions;
}

const UClass* GetClassOfType(const FEdGraphPinType& Type)
{
	const UClass* const Class = Cast<UClass>(Type.PinSubCategoryObject.Get());
	return Class ? Class->GetAuthoritativeClass() : nullptr;
}

/** A function of any object gives an object of any class, unless what it gives follows what it takes. */
bool GivesClassOf(const UFunction& Function, const FEdGraphPinType& OutputType, const FEdGraphPinType& InputType)
{
	const UClass* const Wanted = GetClassOfType(InputType);
	if (!RefersToObject(InputType.PinCategory) || !Wanted || Wanted == UObject::StaticClass())
	{
		return true;
	}
	const UClass* const Given = GetClassOfType(OutputType);
	return Given && Given->IsChildOf(Wanted) && Function.HasMetaData(FBlueprintMetadata::MD_DynamicOutputType);
}

UFunction* FindDeclaredConversion(const FEdGraphPinType& OutputType, const FEdGraphPinType& InputType)
{
	// The libraries are all loaded before the first graph is edited.
	static const TMap<FConversionKey, TWeakObjectPtr<UFunction>> Conversions = FindConversions();
	TArray<FValueKind> Sources = GetServingKinds(OutputType);
	if (OutputType.PinCategory == Schema::PC_Byte && OutputType.PinSubCategoryObject.IsValid() && IsNumber(InputType.PinCategory))
	{
		// An enumeration's value is a number, and other numbers are made of it as such.
		Sources.Add({OutputType.PinCategory, NAME_None, nullptr, OutputType.ContainerType});
	}
	for (const FValueKind& From : Sources)
	{
		for (const FValueKind& To : GetServingKinds(InputType))
		{
			const TWeakObjectPtr<UFunction>* const Found = Conversions.Find({From, To});
			if (Found && Found->IsValid() && GivesClassOf(**Found, OutputType, InputType))
			{
				return Found->Get();
			}
		}
	}
	return nullptr;
}

/** A conversion between categories that a function without the mark does. */
struct FUnmarkedConversion
{
	FName From;
	FName To;
	const TCHAR* Library;
	const TCHAR* Function;
};

UFunction* FindUnmarkedConversion(const FEdGraphPinType& OutputType, const FEdGraphPinType& InputType)
{
	static const FUnmarkedConversion Conversions[] = {
		{Schema::PC_Object, Schema::PC_String, TEXT("/Script/Engine.KismetSystemLibrary"), TEXT("GetDisplayName")},
		{Schema::PC_Class, Schema::PC_String, TEXT("/Script/Engine.KismetSystemLibrary"), TEXT("GetClassDisplayName")},
		{Schema::PC_Object, Schema::PC_Class, TEXT("/Script/Engine.GameplayStatics"), TEXT("GetObjectClass")},
	};
	if (OutputType.IsContainer() || InputType.IsContainer())
	{
		return nullptr;
	}
	for (const FUnmarkedConversion& Conversion : Conversions)
	{
		if (Conversion.From != OutputType.PinCategory || Conversion.To != InputType.PinCategory)
		{
			continue;
		}
		const UClass* const Library = FindObject<UClass>(nullptr, Conversion.Library);
		UFunction* const Function = Library ? Library->FindFunctionByName(Conversion.Function) : nullptr;
		return Function && GivesClassOf(*Function, OutputType, InputType) ? Function : nullptr;
	}
	return nullptr;
}

UFunction* FindSetToArray(const UEdGraphSchema_K2& K2Schema, const FEdGraphPinType& OutputType, const FEdGraphPinType& InputType)
{
	if (!OutputType.IsSet() || !InputType.IsArray() || !K2Schema.ArePinTypesCompatible(OutputType, InputType, nullptr, true))
	{
		return nullptr;
	}
	const UClass* const Library = FindObject<UClass>(nullptr, TEXT("/Script/Engine.BlueprintSetLibrary"));
	return Library ? Library->FindFunctionByName(TEXT("Set_ToArray")) : nullptr;
}

// Nodes

struct FConversion
{
	const UEdGraphSchema_K2& K2Schema;
	const FEdGraphPinType& OutputType;
	const UEdGraphPin& InputPin;

	const FEdGraphPinType& GetInputType() const { return InputPin.PinType; }
	const UClass* GetOutputClass() const
	{
		const UK2Node* const Node = Cast<UK2Node>(InputPin.GetOwningNodeUnchecked());
		return OutputType.PinSubCategory == Schema::PSC_Self && Node ? Node->GetBlueprintClassFromNode() : GetClassOfType(OutputType);
	}
	bool IsBetween(const FName From, const FName To) const
	{
		return OutputType.PinCategory == From && GetInputType().PinCategory == To && !OutputType.IsContainer() &&
			!GetInputType().IsContainer();
	}
	/** The pin wants a class below the one that is given. */
	bool IsDownward() const
	{
		const UClass* const Given = GetOutputClass();
		const UClass* const Wanted = GetClassOfType(GetInputType());
		return Given && Wanted && Given != Wanted && Wanted->IsChildOf(Given);
	}
	bool IsUpward() const
	{
		const UClass* const Given = GetOutputClass();
		const UClass* const Wanted = GetClassOfType(GetInputType());
		return Given && Wanted && Given->IsChildOf(Wanted);
	}
};

struct FConversionNode
{
	bool (*Applies)(const FConversion& Conversion);
	UK2Node* (*Make)(const FConversion& Conversion);
};

template <class NodeType>
UK2Node* MakePlain(const FConversion&)
{
	return NewObject<NodeType>();
}

template <class NodeType>
UK2Node* MakeCast(const FConversion& Conversion)
{
	NodeType* const Node = NewObject<NodeType>();
	Node->TargetType = Cast<UClass>(Conversion.GetInputType().PinSubCategoryObject.Get());
	// What the cast leads to has no execution to lead it by.
	Node->SetPurity(true);
	return Node;
}

UK2Node* MakeByteCast(const FConversion& Conversion)
{
	UK2Node_CastByteToEnum* const Node = NewObject<UK2Node_CastByteToEnum>();
	Node->Enum = Cast<UEnum>(Conversion.GetInputType().PinSubCategoryObject.Get());
	Node->bSafe = true;
	return Node;
}

/** The object's member that the call of a function can go to: an actor's root component for a component's function. */
const FProperty* FindMemberToCallOn(const FConversion& Conversion)
{
	const UK2Node_CallFunction* const Call = Cast<UK2Node_CallFunction>(Conversion.InputPin.GetOwningNodeUnchecked());
	const UFunction* const Function = Call && Conversion.K2Schema.IsSelfPin(Conversion.InputPin) ? Call->GetTargetFunction() : nullptr;
	const bool bGivesObject = Conversion.OutputType.PinCategory == Schema::PC_Object && !Conversion.OutputType.IsContainer();
	const UClass* const FunctionClass = Function && !Function->HasAnyFunctionFlags(FUNC_Static) ? Function->GetOwnerClass() : nullptr;
	if (!bGivesObject || !FunctionClass)
	{
		return nullptr;
	}
	for (TFieldIterator<FObjectProperty> Property(Conversion.GetOutputClass()); Property; ++Property)
	{
		const bool bHasFunction = Property->PropertyClass && Property->PropertyClass->IsChildOf(FunctionClass->GetAuthoritativeClass());
		if (bHasFunction && Property->HasAllPropertyFlags(CPF_BlueprintVisible))
		{
			return *Property;
		}
	}
	return nullptr;
}

UK2Node* MakeMemberGet(const FConversion& Conversion)
{
	const FProperty* const Property = FindMemberToCallOn(Conversion);
	UK2Node_VariableGet* const Node = NewObject<UK2Node_VariableGet>();
	Node->SetFromProperty(Property, false, Property->GetOwnerClass());
	return Node;
}

const FConversionNode ConversionNodes[] = {
	// One value where an array is read. An array that is written to would be lost.
	{[](const FConversion& Conversion)
		{
			const FEdGraphPinType& Input = Conversion.GetInputType();
			return !Conversion.OutputType.IsContainer() && Input.IsArray() && Input.PinCategory != Schema::PC_Wildcard &&
				(!Input.bIsReference || Input.bIsConst) &&
				Conversion.K2Schema.ArePinTypesCompatible(Conversion.OutputType, Input, nullptr, true);
		},
		&MakePlain<UK2Node_MakeArray>},
	{[](const FConversion& Conversion)
		{ return FindMemberToCallOn(Conversion) != nullptr; },
		&MakeMemberGet},
	{[](const FConversion& Conversion)
		{
			return Conversion.IsBetween(Schema::PC_Byte, Schema::PC_Byte) && !Conversion.OutputType.PinSubCategoryObject.IsValid() &&
				Cast<UEnum>(Conversion.GetInputType().PinSubCategoryObject.Get());
		},
		&MakeByteCast},
	{[](const FConversion& Conversion)
		{ return Conversion.IsBetween(Schema::PC_Byte, Schema::PC_String) && Conversion.OutputType.PinSubCategoryObject.IsValid(); },
		&MakePlain<UK2Node_GetEnumeratorNameAsString>},
	{[](const FConversion& Conversion)
		{ return Conversion.IsBetween(Schema::PC_Byte, Schema::PC_Name) && Conversion.OutputType.PinSubCategoryObject.IsValid(); },
		&MakePlain<UK2Node_GetEnumeratorName>},
	{[](const FConversion& Conversion)
		{ return Conversion.IsBetween(Schema::PC_Interface, Schema::PC_Object) && GetClassOfType(Conversion.GetInputType()); },
		&MakeCast<UK2Node_DynamicCast>},
	{[](const FConversion& Conversion)
		{
			return Conversion.IsBetween(Schema::PC_Object, Schema::PC_Object) && Conversion.IsDownward() &&
				GetDefault<UBlueprintEditorSettings>()->bAutoCastObjectConnections;
		},
		&MakeCast<UK2Node_DynamicCast>},
	{[](const FConversion& Conversion)
		{
			return Conversion.IsBetween(Schema::PC_Class, Schema::PC_Class) && Conversion.IsDownward() &&
				GetDefault<UBlueprintEditorSettings>()->bAutoCastObjectConnections;
		},
		&MakeCast<UK2Node_ClassDynamicCast>},
	{[](const FConversion& Conversion)
		{
			const bool bObject = Conversion.IsBetween(Schema::PC_SoftObject, Schema::PC_Object);
			return (bObject || Conversion.IsBetween(Schema::PC_SoftClass, Schema::PC_Class)) && Conversion.IsUpward();
		},
		&MakePlain<UK2Node_ConvertAsset>},
};
}

TOptional<UEdGraphSchema_K2::FSearchForAutocastFunctionResults> UEdGraphSchema_K2::SearchForAutocastFunction(
	const FEdGraphPinType& OutputPinType, const FEdGraphPinType& InputPinType) const
{
	const UFunction* Function = FindSetToArray(*this, OutputPinType, InputPinType);
	Function = Function ? Function : FindUnmarkedConversion(OutputPinType, InputPinType);
	Function = Function ? Function : FindDeclaredConversion(OutputPinType, InputPinType);
	if (!Function)
	{
		return {};
	}
	return FSearchForAutocastFunctionResults{Function->GetFName(), Function->GetOwnerClass()};
}

TOptional<UEdGraphSchema_K2::FFindSpecializedConversionNodeResults> UEdGraphSchema_K2::FindSpecializedConversionNode(
	const FEdGraphPinType& OutputPinType, const UEdGraphPin& InputPin, bool bCreateNode) const
{
	const FConversion Conversion{*this, OutputPinType, InputPin};
	for (const FConversionNode& Node : ConversionNodes)
	{
		if (Node.Applies(Conversion))
		{
			return FFindSpecializedConversionNodeResults{bCreateNode ? Node.Make(Conversion) : nullptr};
		}
	}
	return {};
}
