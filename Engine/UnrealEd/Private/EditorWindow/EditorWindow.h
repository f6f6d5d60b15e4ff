#pragma once

#include "CoreMinimal.h"
#include "Templates/SharedPointer.h"

class UObject;

/** The editor's one window, which shows what was opened or focused last: a graph, another asset, or else the level. Game thread. */
namespace EditorWindow
{
/** Makes the application and its window; the asset editors must be there. */
void Open();
void Close();
/** Shows an asset, a graph of one, or a node from near. Null shows the level. */
void Show(const UObject* Object);
}
