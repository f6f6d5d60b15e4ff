#pragma once

class UStruct;

/** Makes every type that the loaded modules have registered, without default objects: their layout may still be added to. */
void ConstructCompiledInTypes();

/** Flags the properties of the struct that hold parts, before they are linked. */
void MarkInstancedReferences(UStruct* Struct);
