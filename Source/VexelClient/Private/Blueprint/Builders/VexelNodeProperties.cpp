#include "Blueprint/Builders/VexelNodeProperties.h"

#include "EdGraph/EdGraphNode.h"
#include "EdGraph/EdGraphPin.h"
#include "EdGraphSchema_K2.h"
#include "UObject/Class.h"
#include "UObject/SoftObjectPath.h"
#include "UObject/UnrealType.h"

namespace
{
const FProperty* Find(const UEdGraphNode& Node, const TCHAR* Property)
{
	return Node.GetClass()->FindPropertyByName(FName(Property));
}

FString ReadText(const FProperty& Property, const void* Container)
{
	FString Text;
	Property.ExportTextItem_InContainer(Text, Container, nullptr, nullptr, PPF_None);
	return Text == TEXT("None") ? FString() : Text;
}
}

bool VexelNodeProperties::Has(const UEdGraphNode& Node, const TCHAR* Property)
{
	return Find(Node, Property) != nullptr;
}

FString VexelNodeProperties::GetText(const UEdGraphNode& Node, const TCHAR* Property)
{
	const FProperty* const Found = Find(Node, Property);
	return Found ? ReadText(*Found, &Node) : FString();
}

bool VexelNodeProperties::GetBool(const UEdGraphNode& Node, const TCHAR* Property)
{
	const FBoolProperty* const Found = CastField<FBoolProperty>(Find(Node, Property));
	return Found && Found->GetPropertyValue_InContainer(&Node);
}

UObject* VexelNodeProperties::GetObject(const UEdGraphNode& Node, const TCHAR* Property)
{
	const FObjectPropertyBase* const Found = CastField<FObjectPropertyBase>(Find(Node, Property));
	return Found ? Found->GetObjectPropertyValue_InContainer(&Node) : nullptr;
}

FString VexelNodeProperties::GetKeyName(const UEdGraphNode& Node, const TCHAR* Property)
{
	const FStructProperty* const Found = CastField<FStructProperty>(Find(Node, Property));
	const FProperty* const KeyName = Found ? Found->Struct->FindPropertyByName(TEXT("KeyName")) : nullptr;
	return KeyName ? ReadText(*KeyName, Found->ContainerPtrToValuePtr<void>(&Node)) : FString();
}

FString VexelNodeProperties::GetPinObjectName(const UEdGraphNode& Node, const TCHAR* PinName)
{
	const UEdGraphPin* const Pin = Node.FindPin(PinName, EGPD_Input);
	if (!Pin)
	{
		return FString();
	}
	const FName& Category = Pin->PinType.PinCategory;
	if (Category == UEdGraphSchema_K2::PC_SoftObject || Category == UEdGraphSchema_K2::PC_SoftClass)
	{
		return FSoftObjectPath(Pin->DefaultValue).GetAssetName();
	}
	const UObject* const Object =
		Category == UEdGraphSchema_K2::PC_Byte ? Pin->PinType.PinSubCategoryObject.Get() : Pin->DefaultObject.Get();
	return Object ? Object->GetName() : FString();
}
