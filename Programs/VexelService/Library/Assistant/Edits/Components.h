#pragma once

#include "Assistant/BlueprintModel.h"

#include <string>
#include <string_view>
#include <vector>

namespace VexelService
{

struct FComponent
{
	std::string Name;
	/** "PointLightComponent" */
	std::string Class;
};

/** What a Blueprint's export tells of its components: those that it and its parents have, and those of which its graphs speak. */
class FComponents
{
public:
	explicit FComponents(const FBlueprintModel& Model);

	/**
	 * Those that a user's words may mean, by their names or by their classes: "the light" is the one that is a light. Only those that fit
	 * best; several where the words do not tell them apart.
	 */
	std::vector<FComponent> Find(std::string_view Said) const;

	/** False where the export shows no defaults, and so may leave components out. */
	bool AreAllKnown() const { return bAllKnown; }

	/** "**Door** has two components that fit ..., **Lamp** and **Torch**. Name the one that you mean." */
	static std::string DescribeChoice(const FBlueprintModel& Model, std::string_view Said, const std::vector<FComponent>& Found);

private:
	/** Of the property-type id; does nothing where that is no component's. */
	void Add(std::string_view Name, std::string_view Type);

	std::vector<FComponent> Components;
	bool bAllKnown = false;
};

}
