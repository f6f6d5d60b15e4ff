#include "Assistant/Edits/EditRequest.h"

namespace VexelService
{

const std::vector<FEditFamily>& GetEditFamilies()
{
	static const std::vector<FEditFamily> Families = {};
	return Families;
}

}
