#include "Assistant/NodeTitles.h"

#include "Assistant/Words.h"

namespace VexelService
{

std::string NodeTitle(const FBlueprintNode& Node)
{
	std::string_view Id = Node.Id;
	const std::size_t Underscore = Id.rfind('_');
	if (Underscore != std::string_view::npos && Underscore > 0 && Id.find_first_not_of("0123456789", Underscore + 1) == std::string_view::npos)
	{
		Id = Id.substr(0, Underscore);
	}
	return Id.empty() ? "a node without a name" : SpacedName(Id);
}

bool IsNodeType(const FBlueprintNode& Node, std::string_view Prefix)
{
	const std::string_view Type = Node.Type;
	return StartsWith(Type, Prefix) && (Type.size() == Prefix.size() || Type[Prefix.size()] == '.');
}

std::string PinTitle(const FBlueprintPin& Pin)
{
	return SpacedName(Pin.Name.empty() ? Pin.Id : Pin.Name);
}

}
