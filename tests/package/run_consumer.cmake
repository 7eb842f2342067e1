# Installs the build into a private prefix, builds the consumer against it and runs it.
cmake_policy(SET CMP0057 NEW)
set(prefix "${BUILD_DIR}/package-test/install")
set(consumer "${BUILD_DIR}/package-test/consumer")
file(REMOVE_RECURSE "${BUILD_DIR}/package-test")

function(run what)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE out ERROR_VARIABLE err)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${what} failed:\n${out}\n${err}")
    endif()
    set(output "${out}" PARENT_SCOPE)
endfunction()

run("install" ${CMAKE_COMMAND} --install "${BUILD_DIR}" --prefix "${prefix}")
# Only the public surface is installed: no rules, protocol or private headers.
file(GLOB_RECURSE installed RELATIVE "${prefix}/include/KsSystemConfigDlg"
    "${prefix}/include/KsSystemConfigDlg/*.h")
foreach(internal config/ModalProtocol.h config/TableEditor.h layer/LayerFlagRules.h)
    if(internal IN_LIST installed)
        message(FATAL_ERROR "internal header installed: ${internal}")
    endif()
endforeach()
run("configure" ${CMAKE_COMMAND} -S "${SOURCE_DIR}/consumer" -B "${consumer}" -G Ninja
    "-DCMAKE_PREFIX_PATH=${prefix}")
run("build" ${CMAKE_COMMAND} --build "${consumer}")
run("run" ${CMAKE_COMMAND} -E env "LD_LIBRARY_PATH=${prefix}/lib" QT_QPA_PLATFORM=offscreen
    "${consumer}/consumer")
if(NOT output MATCHES "スケールの設定\n0\n表示・非表示レイヤの設定\n2\n")
    message(FATAL_ERROR "unexpected output:\n${output}")
endif()
