# What every target is built with.
find_program(VEXEL_CCACHE ccache)
if(VEXEL_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
	set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_SOURCE_DIR}/Scripts/cached-compiler ${VEXEL_CCACHE})
endif()

add_library(vexel_options INTERFACE)
target_compile_options(vexel_options INTERFACE -Wall -Wextra -Werror -Wno-unused-parameter -Wnon-virtual-dtor -Woverloaded-virtual
	-fno-strict-aliasing -fno-semantic-interposition)
# Reflection reads offsets of members of types with base classes, which both compilers support.
target_compile_options(vexel_options INTERFACE -Wno-invalid-offsetof)
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
	# A precompiled header must not depend on where the build stands, or the compiler cache never hits.
	target_compile_options(vexel_options INTERFACE -fpch-preprocess)
endif()
target_compile_definitions(vexel_options INTERFACE $<$<CONFIG:Debug>:UE_BUILD_DEBUG=1>)

if(VEXEL_SANITIZE)
	add_compile_options(-fsanitize=${VEXEL_SANITIZE} -fno-omit-frame-pointer -g1)
	add_link_options(-fsanitize=${VEXEL_SANITIZE})
	# The checks that are compiled in hide from the compiler that a value is set.
	add_compile_options($<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
else()
	# A shared library that uses a module outside its floors fails to link. Sanitized libraries cannot be linked so strictly,
	# because the sanitizer's symbols are in the program.
	set(VEXEL_NO_UNDEFINED -Wl,-z,defs)
endif()

# A module registers itself when its library is loaded: one that a target depends on is loaded though no symbol of it is used.
add_link_options(LINKER:--no-as-needed)
# The loader looks up a function at its first call otherwise, and saves the registers on the stack for that: with what a copy has
# left in them, which may be a token. The tables of functions can be read only then, too.
add_link_options(LINKER:-z,relro,-z,now)

find_program(VEXEL_MOLD mold)
if(VEXEL_MOLD)
	add_link_options(-fuse-ld=mold)
endif()
