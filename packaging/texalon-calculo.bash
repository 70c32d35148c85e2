# Completado de bash para texalon-calculo.       -*- shell-script -*-
#
# Options and their values (the names of --diagrama, the numbers of --tipo and --capas, a folder
# for --svg and --informe, the kinds of --plantilla), and as arguments the project files, .vmf
# and .vmc in either case, or with --tabla the tables, .csv, .tsv and .txt, and the folders on
# the way to them. --csv goes with nothing but names and --tabla, so it is offered only while no
# other option has been given, and no other option after it; --plantilla goes with nothing at
# all; after "--" only names are offered. It needs nothing of the bash-completion package beyond
# being loaded by it.

_texalon_calculo()
{
    local actual=${COMP_WORDS[COMP_CWORD]}
    local anterior=
    ((COMP_CWORD > 0)) && anterior=${COMP_WORDS[COMP_CWORD - 1]}
    COMPREPLY=()

    # The value of an option that takes one.
    case $anterior in
    --diagrama)
        mapfile -t COMPREPLY < <(compgen -W 'tension confinamiento area capas pivotes seccion' -- "$actual")
        return
        ;;
    --tipo)
        mapfile -t COMPREPLY < <(compgen -W '1 2 3' -- "$actual")
        return
        ;;
    --capas)
        mapfile -t COMPREPLY < <(compgen -W '1 2 3 4 5' -- "$actual")
        return
        ;;
    --svg | --informe | --proyectos)
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -d -- "$actual")
        return
        ;;
    --plantilla)
        mapfile -t COMPREPLY < <(compgen -W 'rectangular T confinamiento' -- "$actual")
        return
        ;;
    esac

    # What the words before this one have asked for already.
    local palabra i solo_nombres=0 csv=0 otras=0 ayuda=0 tablas=0
    local -A dadas=()
    for ((i = 1; i < COMP_CWORD; i++)); do
        palabra=${COMP_WORDS[i]}
        if [[ $palabra == -- ]]; then
            solo_nombres=1
            break
        fi
        case $palabra in
        --csv) csv=1 ;;
        --tabla) tablas=1 ;;
        -h | --help | --plantilla) ayuda=1 ;;
        --json | --diagrama | --tipo | --capas | --svg | --informe | --resumen) otras=1 ;;
        esac
        [[ $palabra == -* ]] && dadas[$palabra]=1
        # An option's value is not an option nor a name.
        case $palabra in
        --diagrama | --tipo | --capas | --svg | --informe | --plantilla | --proyectos) ((i++)) ;;
        esac
    done

    if ((!solo_nombres && !ayuda)) && [[ $actual == -* ]]; then
        local opciones=() opcion
        if ((csv)); then
            opciones=(--tabla --)
        else
            opciones=(--tabla --json --resumen --proyectos --diagrama --tipo --capas --svg --informe --help --)
            ((otras)) || opciones=(--csv "${opciones[@]}")
            ((otras || tablas)) || opciones+=(--plantilla)
        fi
        local libres=()
        for opcion in "${opciones[@]}"; do
            [[ -n ${dadas[$opcion]-} && $opcion != -- ]] || libres+=("$opcion")
        done
        mapfile -t COMPREPLY < <(compgen -W "${libres[*]}" -- "$actual")
        return
    fi
    ((ayuda)) && return

    # Project files, or tables, and the folders that may hold them (a folder named like a file
    # comes from both lists: once is enough). Before "--" a name that starts with "-" would be
    # taken for an option: it is offered only after "--".
    compopt -o filenames 2>/dev/null
    local nombres=() patrones=('!*.[vV][mM][fFcC]') patron
    ((tablas)) && patrones=('!*.[cC][sS][vV]' '!*.[tT][sS][vV]' '!*.[tT][xX][tT]')
    mapfile -t nombres < <({
        compgen -d -- "$actual"
        for patron in "${patrones[@]}"; do
            compgen -f -X "$patron" -- "$actual"
        done
    } | sort -u)
    for palabra in "${nombres[@]}"; do
        ((solo_nombres)) || [[ $palabra != -* ]] && COMPREPLY+=("$palabra")
    done
}

complete -F _texalon_calculo texalon-calculo
