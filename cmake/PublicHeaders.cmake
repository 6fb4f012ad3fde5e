# The headers that are installed: what a program over each target may include. In these folders all are public but those
# named here; of the others only those named here are.
set(internal_headers
    memory/NewImpl.h
    memory/PlaceIndex.h
    tools/Alternative.h
    tools/DiagCommKinds.h
    tools/DestroyIfThere.h
    tools/ListViewImpl.h
    tools/ParamRecursivSearchVisitor.h
    tools/ResponseParams.h
    tools/ViewBuilder.h
)
set(public_headers
    check/Check.h
    check/Codes.h
    check/Cycles.h
    conformance/Conformance.h
    conformance/Reference.h
    reader/Diagnostic.h
    reader/Limits.h
    reader/OdxReader.h
    reader/Utf8.h
    tools/oem/Manufacturer.h
    tools/oem/OemChecker.h
    tools/oem/OemReport.h
    util/Assertion.h
    util/CheckedCast.h
    util/Utf16.h
)
foreach(folder model logging tools memory)
    file(GLOB headers RELATIVE ${PROJECT_SOURCE_DIR} CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${folder}/*.h
                                                                       ${PROJECT_SOURCE_DIR}/${folder}/*.def)
    list(APPEND public_headers ${headers})
endforeach()
list(REMOVE_ITEM public_headers ${internal_headers})

if(NOT TARGET diagkit_reader)
    list(FILTER public_headers EXCLUDE REGEX "^(reader|check)/")
endif()
