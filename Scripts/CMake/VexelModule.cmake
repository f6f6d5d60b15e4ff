# One function a kind of target, so that a module's own CMakeLists.txt says only what it is and what it may know.

# A module: a shared library of Public/ and Private/. PUBLIC_DEPENDS and PRIVATE_DEPENDS name the modules below it, as the
# engine's Build.cs files do; a symbol of any other module does not link. Headers that include their own ".generated.h"
# are read by HeaderTool, and the reflection code that it emits is compiled into the module.
function(vexel_module Name)
	cmake_parse_arguments(Arg "" "PRECOMPILED" "PUBLIC_DEPENDS;PRIVATE_DEPENDS;LIBRARIES;DEFINITIONS" ${ARGN})
	file(GLOB_RECURSE Sources CONFIGURE_DEPENDS Private/*.cpp)
	file(GLOB_RECURSE Headers CONFIGURE_DEPENDS Public/*.h Private/*.h)
	if(NOT Sources)
		# A module may be headers alone, but a shared library needs a source.
		file(CONFIGURE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/${Name}Module.cpp CONTENT "")
		set(Sources ${CMAKE_CURRENT_BINARY_DIR}/${Name}Module.cpp)
	endif()

	vexel_reflect(${Name} GeneratedSources ${Headers})
	add_library(${Name} SHARED ${Sources} ${GeneratedSources})
	target_include_directories(${Name} PUBLIC Public PRIVATE Private)
	string(TOUPPER ${Name} UpperName)
	target_compile_definitions(${Name} PUBLIC ${UpperName}_API= PRIVATE ${Arg_DEFINITIONS})
	target_link_libraries(${Name} PUBLIC ${Arg_PUBLIC_DEPENDS} PRIVATE ${Arg_PRIVATE_DEPENDS} ${Arg_LIBRARIES} vexel_options)
	target_link_options(${Name} PRIVATE ${VEXEL_NO_UNDEFINED})
	if(TARGET ${Name}_Reflection)
		target_link_libraries(${Name} PUBLIC ${Name}_GeneratedHeaders)
		add_dependencies(${Name} ${Name}_Reflection)
	endif()
	if(Arg_PRECOMPILED)
		target_precompile_headers(${Name} PRIVATE <${Arg_PRECOMPILED}>)
		set_source_files_properties(${GeneratedSources} PROPERTIES SKIP_PRECOMPILE_HEADERS OFF)
	endif()
	set_property(GLOBAL APPEND PROPERTY VEXEL_MODULES ${Name})
endfunction()

# Adds the HeaderTool run of one module and returns the sources that it writes.
function(vexel_reflect Name OutSources)
	set(Reflected)
	foreach(Header ${ARGN})
		file(STRINGS ${Header} Includes REGEX "#include \"[A-Za-z0-9_]+\\.generated\\.h\"" LIMIT_COUNT 1)
		if(Includes)
			list(APPEND Reflected ${Header})
		endif()
	endforeach()
	set(${OutSources} "" PARENT_SCOPE)
	if(NOT Reflected)
		return()
	endif()

	set(GeneratedDir ${CMAKE_CURRENT_BINARY_DIR}/Generated)
	set(GeneratedHeaders)
	set(GeneratedCode)
	foreach(Header ${Reflected})
		get_filename_component(Stem ${Header} NAME_WE)
		list(APPEND GeneratedHeaders ${GeneratedDir}/${Stem}.generated.h)
		list(APPEND GeneratedCode ${GeneratedDir}/${Stem}.gen.cpp)
	endforeach()
	# HeaderTool leaves a file alone whose text would not change, so that touching one header compiles only its users again.
	set(Manifest ${CMAKE_CURRENT_BINARY_DIR}/${Name}.headers)
	string(REPLACE ";" "\n" ManifestText "${Reflected}")
	file(GENERATE OUTPUT ${Manifest} CONTENT "${ManifestText}\n")
	# Declarations of the modules below tell a delegate from a struct, so headers of theirs are read too; the dependency file names them.
	set(IncludeList ${CMAKE_CURRENT_BINARY_DIR}/${Name}.includes)
	file(GENERATE OUTPUT ${IncludeList} CONTENT "$<JOIN:$<TARGET_PROPERTY:${Name},INCLUDE_DIRECTORIES>,\n>\n")
	add_custom_command(
		OUTPUT ${GeneratedDir}/${Name}.stamp
		BYPRODUCTS ${GeneratedHeaders} ${GeneratedCode}
		COMMAND HeaderTool --module ${Name} --root ${CMAKE_CURRENT_SOURCE_DIR} --headers ${Manifest} --output ${GeneratedDir}
			--includes ${IncludeList} --depfile ${GeneratedDir}/${Name}.d
		COMMAND ${CMAKE_COMMAND} -E touch ${GeneratedDir}/${Name}.stamp
		DEPENDS HeaderTool ${Reflected} ${Manifest} ${IncludeList}
		DEPFILE ${GeneratedDir}/${Name}.d
		COMMENT "Reflecting ${Name}"
		VERBATIM)
	add_custom_target(${Name}_Reflection DEPENDS ${GeneratedDir}/${Name}.stamp)
	add_library(${Name}_GeneratedHeaders INTERFACE)
	target_include_directories(${Name}_GeneratedHeaders INTERFACE ${GeneratedDir})
	add_dependencies(${Name}_GeneratedHeaders ${Name}_Reflection)
	set_source_files_properties(${GeneratedCode} PROPERTIES GENERATED ON)
	set(${OutSources} ${GeneratedCode} PARENT_SCOPE)
endfunction()

# A program: Private/ alone, linked into bin/.
function(vexel_program Name)
	cmake_parse_arguments(Arg "" "OUTPUT" "DEPENDS;LIBRARIES" ${ARGN})
	file(GLOB_RECURSE Sources CONFIGURE_DEPENDS Private/*.cpp)
	add_executable(${Name} ${Sources})
	target_include_directories(${Name} PRIVATE Private)
	target_link_libraries(${Name} PRIVATE ${Arg_DEPENDS} ${Arg_LIBRARIES} vexel_options)
	if(Arg_OUTPUT)
		set_target_properties(${Name} PROPERTIES OUTPUT_NAME ${Arg_OUTPUT})
	endif()
endfunction()

# A test program: every source below the calling folder. LOCKS names ctest resources (a fixed port) that its tests share.
function(vexel_tests Name)
	cmake_parse_arguments(Arg "NO_MAIN" "" "DEPENDS;LIBRARIES;LOCKS;SOURCES" ${ARGN})
	file(GLOB_RECURSE Sources CONFIGURE_DEPENDS *.cpp)
	if(NOT Sources)
		return()
	endif()
	add_executable(${Name} ${Sources} ${Arg_SOURCES})
	target_include_directories(${Name} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
	target_link_libraries(${Name} PRIVATE ${Arg_DEPENDS} ${Arg_LIBRARIES} GTest::gmock vexel_options)
	if(NOT Arg_NO_MAIN)
		target_link_libraries(${Name} PRIVATE GTest::gtest_main)
	endif()
	set(Properties TIMEOUT 120)
	if(Arg_LOCKS)
		list(APPEND Properties RESOURCE_LOCK "${Arg_LOCKS}")
	endif()
	gtest_discover_tests(${Name} NO_PRETTY_VALUES TEST_PREFIX ${Name}. DISCOVERY_TIMEOUT 60 PROPERTIES ${Properties})
endfunction()
