# Every target of ours links parlate_compiler: one place for warnings and sanitizers.
add_library(parlate_compiler INTERFACE)

target_compile_options(parlate_compiler INTERFACE
  -Wall -Wextra -Wpedantic
  -Wconversion   # a field of the file has one width; narrowing is written out or it is a bug
  -Wshadow       # members are public and plainly named, so a local may not hide one
  -Werror)

if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC 12 sees overlaps in inlined std::string concatenation that are not there.
  target_compile_options(parlate_compiler INTERFACE -Wno-restrict)
endif()

if(PARLATE_SANITIZE)
  target_compile_options(parlate_compiler INTERFACE
    -fsanitize=${PARLATE_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
  target_link_options(parlate_compiler INTERFACE -fsanitize=${PARLATE_SANITIZE})
endif()
