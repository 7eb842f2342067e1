# ./dev.sh run called from another folder takes the drawing, settings and picture folders given
# as relative paths from there, and leaves the checkout as it was.
set(work "${BUILD_DIR}/devsh-test")
file(REMOVE_RECURSE "${work}")
file(MAKE_DIRECTORY "${work}/drawings")
file(COPY "${SOURCE_DIR}/tests/data/dxf/libredwg_example_r12.dxf" DESTINATION "${work}/drawings")
execute_process(
    COMMAND ${CMAKE_COMMAND} -E env --unset=DISPLAY --unset=WAYLAND_DISPLAY DEV_SKIP_BUILD=1
            "BUILD_DIR=${BUILD_DIR}" "${SOURCE_DIR}/dev.sh" run
            --drawing drawings/libredwg_example_r12.dxf --settings settings --screenshot shots
    WORKING_DIRECTORY "${work}"
    RESULT_VARIABLE result OUTPUT_VARIABLE out ERROR_VARIABLE err)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "dev.sh run failed (${result}):\n${out}\n${err}")
endif()
foreach(expected settings/dialogdata.xml shots/workbench.png shots/layer-viewport-new.png)
    if(NOT EXISTS "${work}/${expected}")
        message(FATAL_ERROR "${expected} missing beside the caller:\n${out}\n${err}")
    endif()
endforeach()
foreach(stray settings shots drawings)
    if(EXISTS "${SOURCE_DIR}/${stray}")
        message(FATAL_ERROR "${stray} was made in the checkout")
    endif()
endforeach()
file(REMOVE_RECURSE "${work}")
