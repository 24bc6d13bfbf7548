# Warnings and sanitizers, for every target of this project and for none that a host adds.
add_library(lagomare-compiler INTERFACE)
if(MSVC)
  target_compile_options(lagomare-compiler INTERFACE /W4 $<$<BOOL:${LAGOMARE_WERROR}>:/WX>)
else()
  target_compile_options(lagomare-compiler INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor
    -Wold-style-cast -Woverloaded-virtual $<$<BOOL:${LAGOMARE_WERROR}>:-Werror>)
endif()
if(LAGOMARE_SANITIZE)
  target_compile_options(lagomare-compiler INTERFACE
    -fsanitize=${LAGOMARE_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(lagomare-compiler INTERFACE -fsanitize=${LAGOMARE_SANITIZE})
endif()
