# Completion of diagkit(1) for bash, made by packaging/generate.
_diagkit() {
    local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    local options= choices= answers=
    case ${COMP_WORDS[1]} in
    info) options="--help --wide --verbose --json --strict --quiet --version --max-file-size --max-members --max-member-size --max-package-size --max-ratio --max-elements --max-depth --max-attributes --max-tag-size --max-text-size --max-diagnostics" choices="" ;;
    layers) options="--help --csv --wide --verbose --json --strict --quiet --version --max-file-size --max-members --max-member-size --max-package-size --max-ratio --max-elements --max-depth --max-attributes --max-tag-size --max-text-size --max-diagnostics" choices="" ;;
    graph) options="--help --verbose --layer --format --json --strict --quiet --version --max-file-size --max-members --max-member-size --max-package-size --max-ratio --max-elements --max-depth --max-attributes --max-tag-size --max-text-size --max-diagnostics" choices="" ;;
    view) options="--help --layer --container --diag-comm --job --flash --range --requests --csv --wide --verbose --json --strict --quiet --version --max-file-size --max-members --max-member-size --max-package-size --max-ratio --max-elements --max-depth --max-attributes --max-tag-size --max-text-size --max-diagnostics" choices="diag-comms diag-variables global-neg-responses dops protocols in-params out-params idents sessions" ;;
    resolve) options="--help --layer --container --diag-comm --job --flash --range --verbose --json --strict --quiet --version --max-file-size --max-members --max-member-size --max-package-size --max-ratio --max-elements --max-depth --max-attributes --max-tag-size --max-text-size --max-diagnostics" choices="dop data-object-prop diag-comm diag-variable protocol ident session in-param out-param" ;;
    explain) options="--help --layer --max-candidates --wide --verbose --json --strict --quiet --version --max-file-size --max-members --max-member-size --max-package-size --max-ratio --max-elements --max-depth --max-attributes --max-tag-size --max-text-size --max-diagnostics" choices="diag-comm diag-variable global-neg-response dop" ;;
    show) options="--help --layer --kind --max-rows --verbose --json --strict --quiet --version --max-file-size --max-members --max-member-size --max-package-size --max-ratio --max-elements --max-depth --max-attributes --max-tag-size --max-text-size --max-diagnostics" choices="" ;;
    traverse) options="--help --layer --dictionary --max-visits --verbose --json --strict --quiet --version --max-file-size --max-members --max-member-size --max-package-size --max-ratio --max-elements --max-depth --max-attributes --max-tag-size --max-text-size --max-diagnostics" choices="" ;;
    oem) options="--help --verbose --each --json --strict --quiet --version --max-file-size --max-members --max-member-size --max-package-size --max-ratio --max-elements --max-depth --max-attributes --max-tag-size --max-text-size --max-diagnostics" choices="" ;;
    enums) options="--help --json --strict --quiet --version" choices="CommRelationValueType Addressing PhysicalDataType Direction IdentValueType ValidType Termination RowFragment DataformatSelection DataType PhysicalLinkType UnitGroupCategory IntervalType ProjIdentType DiagClassType StandardisationLevel Radix PinType EncryptCompressMethodType Encoding CompuCategory Doctype SessionSubElemType" ;;
    check) options="--help --verbose --csv --format --fail-on --ignore --only --baseline --json --strict --quiet --version --max-file-size --max-members --max-member-size --max-package-size --max-ratio --max-elements --max-depth --max-attributes --max-tag-size --max-text-size --max-diagnostics" choices="" ;;
    uses) options="--help --kind --layer --unused --csv --wide --verbose --json --strict --quiet --version --max-file-size --max-members --max-member-size --max-package-size --max-ratio --max-elements --max-depth --max-attributes --max-tag-size --max-text-size --max-diagnostics" choices="" ;;
    find) options="--help --regex --kind --csv --wide --verbose --json --strict --quiet --version --max-file-size --max-members --max-member-size --max-package-size --max-ratio --max-elements --max-depth --max-attributes --max-tag-size --max-text-size --max-diagnostics" choices="" ;;
    diff) options="--help --old --new --layer --to-layer --ignore --ids --verbose --json --strict --quiet --version --max-file-size --max-members --max-member-size --max-package-size --max-ratio --max-elements --max-depth --max-attributes --max-tag-size --max-text-size --max-diagnostics" choices="" ;;
    esac
    case "${COMP_WORDS[1]} $previous" in
    *" --max-file-size") answers="" ;;
    *" --max-members") answers="" ;;
    *" --max-member-size") answers="" ;;
    *" --max-package-size") answers="" ;;
    *" --max-ratio") answers="" ;;
    *" --max-elements") answers="" ;;
    *" --max-depth") answers="" ;;
    *" --max-attributes") answers="" ;;
    *" --max-tag-size") answers="" ;;
    *" --max-text-size") answers="" ;;
    *" --max-diagnostics") answers="" ;;
    *" --layer") answers="" ;;
    "graph --format") answers="svg dot mermaid" ;;
    "check --format") answers="text json sarif" ;;
    *" --container") answers="" ;;
    *" --diag-comm") answers="" ;;
    *" --job") answers="" ;;
    *" --flash") answers="" ;;
    *" --range") answers="0 1 2 3 4 5" ;;
    *" --max-candidates") answers="" ;;
    *" --kind") answers="" ;;
    *" --max-rows") answers="" ;;
    *" --max-visits") answers="" ;;
    *" --fail-on") answers="error warning" ;;
    "check --ignore") answers="after-end-of-pdu ambiguous-document ambiguous-name bit-position byte-size coded-length constant-does-not-fit containment-cycle contradicting-type conversion-types division-by-zero document-type duplicate-id duplicate-key duplicate-member duplicate-short-name duplicate-trouble-code empty encoding encoding-type excludes-nothing gap-between-scales import-cycle length-key-after-use length-range limits-reversed misplaced-child missing-attribute missing-child missing-model-version missing-wrapper no-category no-file no-package not-a-value not-odx not-xml overlapping-cases overlapping-params overlapping-scales parent-itself parent-kind reference-kind related-diag-comm-cycle repeated-child repeated-document repeated-file repeated-import repeated-parent request-bytes-outside requests-alike second-alternative short-name-characters short-name-not-allowed short-name-not-everywhere stray-text table-row-cycle target-left-out too-compressed too-deep too-large too-many too-many-diagnostics unit-without-dimension unknown-child unknown-literal unknown-model-version unknown-type unprefixed-type unreadable unresolved-reference unresolved-short-name unsafe-name wrong-docref" ;;
    "diff --ignore") answers="long-names descriptions admin-data order" ;;
    *" --only") answers="after-end-of-pdu ambiguous-document ambiguous-name bit-position byte-size coded-length constant-does-not-fit containment-cycle contradicting-type conversion-types division-by-zero document-type duplicate-id duplicate-key duplicate-member duplicate-short-name duplicate-trouble-code empty encoding encoding-type excludes-nothing gap-between-scales import-cycle length-key-after-use length-range limits-reversed misplaced-child missing-attribute missing-child missing-model-version missing-wrapper no-category no-file no-package not-a-value not-odx not-xml overlapping-cases overlapping-params overlapping-scales parent-itself parent-kind reference-kind related-diag-comm-cycle repeated-child repeated-document repeated-file repeated-import repeated-parent request-bytes-outside requests-alike second-alternative short-name-characters short-name-not-allowed short-name-not-everywhere stray-text table-row-cycle target-left-out too-compressed too-deep too-large too-many too-many-diagnostics unit-without-dimension unknown-child unknown-literal unknown-model-version unknown-type unprefixed-type unreadable unresolved-reference unresolved-short-name unsafe-name wrong-docref" ;;
    *" --baseline") answers="" ;;
    *" --old") answers="" ;;
    *" --new") answers="" ;;
    *" --to-layer") answers="" ;;
    *)
        if ((COMP_CWORD == 1)); then
            answers="info layers graph view resolve explain show traverse oem enums check uses find diff --help --version"
        elif [[ $word == -* ]]; then
            answers=$options
        elif ((COMP_CWORD == 2)); then
            answers=$choices
        fi
        ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$answers" -- "$word")
}
complete -o default -F _diagkit diagkit
