# The headers that are installed, which programs may include. In the folders of the loop below all are public except the
# internal ones listed here; in the other folders only the public ones listed here are.
set(internal_headers
    diagkit/memory/Instances.def
    diagkit/memory/InstancesEnd.def
    diagkit/memory/NewImpl.h
    diagkit/memory/PlaceIndex.h
    diagkit/tools/Alternative.h
    diagkit/tools/DiagCommKinds.h
    diagkit/tools/DestroyIfThere.h
    diagkit/tools/InheritedViewImpl.h
    diagkit/tools/ListViewImpl.h
    diagkit/tools/ParamRecursivSearchVisitor.h
    diagkit/tools/ViewBuilder.h
    diagkit/tools/WayGraph.h
)
set(public_headers
    diagkit/Check.h
    diagkit/Conformance.h
    diagkit/Memory.h
    diagkit/Model.h
    diagkit/Query.h
    diagkit/Reader.h
    diagkit/Toolkit.h
    diagkit/check/Check.h
    diagkit/check/Codes.h
    diagkit/check/Cycles.h
    diagkit/conformance/Conformance.h
    diagkit/conformance/Reference.h
    diagkit/query/ConstantBytes.h
    diagkit/query/Content.h
    diagkit/query/Diff.h
    diagkit/query/DopValues.h
    diagkit/query/Explain.h
    diagkit/query/FilePlace.h
    diagkit/query/Find.h
    diagkit/query/InheritanceGraph.h
    diagkit/query/InheritedKind.h
    diagkit/query/LayerView.h
    diagkit/query/MessageLayout.h
    diagkit/query/Uses.h
    diagkit/reader/Diagnostic.h
    diagkit/reader/Folder.h
    diagkit/reader/Limits.h
    diagkit/reader/OdxReader.h
    diagkit/reader/Utf8.h
    diagkit/tools/oem/Manufacturer.h
    diagkit/tools/oem/OemChecker.h
    diagkit/tools/oem/OemReport.h
    diagkit/util/Assertion.h
    diagkit/util/CheckedCast.h
    diagkit/util/Utf16.h
)
foreach(folder model model/facts logging tools memory)
    set(path ${PROJECT_SOURCE_DIR}/diagkit/${folder})
    file(GLOB headers RELATIVE ${PROJECT_SOURCE_DIR} CONFIGURE_DEPENDS ${path}/*.h ${path}/*.def)
    list(APPEND public_headers ${headers})
endforeach()
list(REMOVE_ITEM public_headers ${internal_headers})

if(NOT TARGET diagkit_reader)
    list(FILTER public_headers EXCLUDE REGEX "^diagkit/((reader|check|query)/|(Reader|Check|Query)[.]h)")
endif()
