#pragma once

class UClass;

/** Makes the classes that reflection itself is made of, with their default objects. Does nothing the second time. */
void ConstructIntrinsicClasses();
