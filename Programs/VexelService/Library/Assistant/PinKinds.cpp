#include "Assistant/PinKinds.h"

#include "Assistant/Words.h"

#include <algorithm>
#include <iterator>

namespace VexelService
{

bool IsDataInput(const FBlueprintPin& Pin)
{
	return Pin.bInput && !Pin.IsExec();
}

bool IsSelfPin(const FBlueprintPin& Pin)
{
	return EqualIgnoringCase(Pin.Id, "self");
}

bool IsHiddenInput(const FBlueprintPin& Pin)
{
	return IsSelfPin(Pin) || StartsWith(Pin.Id, "WorldContext") || Pin.Id == "LatentInfo" || Pin.Id == "__WorldContext";
}

bool IsTellingLiteral(const FBlueprintPin& Pin)
{
	static constexpr std::string_view Dull[] = {"", "0", "0.0", "0.000000", "false", "None", "ref|None", "()", "0, 0, 0", "0,0,0"};
	return std::find(std::begin(Dull), std::end(Dull), Pin.Value) == std::end(Dull);
}

FCallName SplitCall(std::string_view NodeType)
{
	const std::size_t FirstDot = NodeType.find('.');
	const std::string_view Rest = FirstDot == std::string_view::npos ? std::string_view() : NodeType.substr(FirstDot + 1);
	const std::size_t LastDot = Rest.rfind('.');
	return LastDot == std::string_view::npos ? FCallName{{}, Rest} : FCallName{Rest.substr(0, LastDot), Rest.substr(LastDot + 1)};
}

}
