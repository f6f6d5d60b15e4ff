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

/** What a Blueprint's export tells of its components: those that it adds, those of which its graphs speak, and its native parents' own. */
class FComponents
{
public:
	explicit FComponents(const FBlueprintModel& Model);

	/**
	 * Those that a user's words may mean, by their names or by their classes: "the light" is the one that is a light. Only those that fit
	 * best; several where the words do not tell them apart.
	 */
	std::vector<FComponent> Find(std::string_view Said) const;

	/** False where a parent may have more of them, which the export does not show. */
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
