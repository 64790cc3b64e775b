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
  set(sanitizers ${PARLATE_SANITIZE})
  set(fatal undefined)
  if(PARLATE_SANITIZE MATCHES undefined)
    # Numbers of a file may be beyond every integer, and "undefined" leaves these casts out.
    string(APPEND sanitizers ,float-cast-overflow)
    string(APPEND fatal ,float-cast-overflow)
  endif()
  target_compile_options(parlate_compiler INTERFACE
    -fsanitize=${sanitizers} -fno-omit-frame-pointer -fno-sanitize-recover=${fatal})
  target_link_options(parlate_compiler INTERFACE -fsanitize=${sanitizers})
endif()
