# vexbase_mingw_runtime_dlls(<var>): full paths of the MinGW runtime DLLs that
# programs from this compiler load (C++ library, GCC support, threads). A
# Windows program needs them beside it, or on Wine's path in the tests.
function(vexbase_mingw_runtime_dlls out)
  set(dlls "")
  foreach(name libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${name}
                    OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE)
    # Some compilers answer the bare name for the threads DLL, which lives in
    # the target's own lib folder.
    if(NOT IS_ABSOLUTE "${path}" OR NOT EXISTS "${path}")
      set(path "")
      foreach(root IN LISTS CMAKE_FIND_ROOT_PATH)
        if(NOT path AND EXISTS ${root}/lib/${name})
          set(path ${root}/lib/${name})
        endif()
      endforeach()
    endif()
    if(path)
      file(REAL_PATH ${path} path)
      list(APPEND dlls ${path})
    else()
      message(WARNING "${name} not found: Windows programs will not start without it")
    endif()
  endforeach()
  set(${out} "${dlls}" PARENT_SCOPE)
endfunction()
