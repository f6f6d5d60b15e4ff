#pragma once

#include "Containers/StringConv.h"
#include "GraphFixture.h"
#include "K2Node_TemporaryVariable.h"

#include <sstream>
#include <string>

/**
 * A graph with pins of any type: "int", "real double", "byte ECollisionChannel", "array of object Actor", "map name int", "ref struct
 * Vector".
 */
class FSchemaFixture : public FGraphTest
{
protected:
	static FEdGraphPinType Type(const std::string& Text)
	{
		std::istringstream Words(Text);
		FEdGraphPinType Result;
		std::string Word;
		Words >> Word;
		if (Word == "ref")
		{
			Result.bIsReference = true;
			Words >> Word;
		}
		for (const auto& [Name, Container] : {std::pair("array", EPinContainerType::Array), std::pair("set", EPinContainerType::Set)})
		{
			if (Word == Name)
			{
				Result.ContainerType = Container;
				Words >> Word >> Word;
			}
		}
		if (Word == "map")
		{
			Result.ContainerType = EPinContainerType::Map;
			Words >> Word;
			Result.PinCategory = FName(UTF8_TO_TCHAR(Word.c_str()));
			std::string Values;
			std::getline(Words, Values);
			Result.PinValueType = FEdGraphTerminalType::FromPinType(Type(Values));
			return Result;
		}
		Result.PinCategory = FName(UTF8_TO_TCHAR(Word.c_str()));
		if (!(Words >> Word))
		{
			return Result;
		}
		const FString Name(UTF8_TO_TCHAR(Word.c_str()));
		const bool bIsSubCategory = Word == "self" || Word == "index" || Word == "float" || Word == "double";
		Result.PinSubCategory = bIsSubCategory ? FName(*Name) : FName();
		Result.PinSubCategoryObject = bIsSubCategory ? nullptr : FindFirstObject<UField>(*Name, EFindFirstObjectOptions::NativeFirst);
		EXPECT_TRUE(bIsSubCategory || Result.PinSubCategoryObject.IsValid()) << Word;
		return Result;
	}

	/** A new pin on a node of its own. */
	UEdGraphPin& MakePin(EEdGraphPinDirection Direction, const FEdGraphPinType& PinType)
	{
		UK2Node_TemporaryVariable* const Node = Add<UK2Node_TemporaryVariable>();
		return *Node->CreatePin(Direction, PinType, TEXT("Pin"));
	}
	UEdGraphPin& MakePin(EEdGraphPinDirection Direction, const std::string& Text) { return MakePin(Direction, Type(Text)); }
};
