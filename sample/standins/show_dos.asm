; sample/standins/show_dos.asm
;
; Stands in for a DOS game: shows the directory it was started in, its arguments and its environment, and writes the
; same to OUTPUT.TXT in that directory. The last line is "end".
;
;   nasm -f bin show_dos.asm -o QUAKE.EXE

        bits 16
        cpu 8086

kHeaderParagraphs equ 2
kStackBytes       equ 512

section .header start=0 vstart=0
        db 'MZ'
        dw file_bytes % 512             ; bytes in the last page
        dw (file_bytes + 511) / 512     ; pages
        dw 0                            ; relocations
        dw kHeaderParagraphs
        dw (kStackBytes + 31) / 16      ; paragraphs needed behind the image
        dw 0xFFFF                       ; paragraphs wanted
        dw 0                            ; SS, from the image's start
        dw stack_top                    ; SP
        dw 0                            ; checksum
        dw start                        ; IP
        dw 0                            ; CS, from the image's start
        dw 0x1C                         ; relocation table
        dw 0                            ; not an overlay
        times kHeaderParagraphs * 16 - ($ - $$) db 0


section .text follows=.header vstart=0
start:
        mov     bx, ds                  ; DOS hands the program segment prefix over in DS
        mov     ax, cs
        mov     ds, ax
        mov     [psp], bx
        cld

        mov     ah, 0x3C                ; create the file
        xor     cx, cx
        mov     dx, file_name
        int     0x21
        jc      .no_file
        mov     [file], ax
.no_file:
        mov     si, directory_title
        call    write_text
        mov     ah, 0x19                ; current drive, 0 is A:
        int     0x21
        add     al, 'A'
        mov     [directory], al
        mov     ah, 0x47                ; current directory without drive
        xor     dl, dl
        mov     si, directory + 3
        int     0x21
        mov     si, directory
        call    write_text
        call    write_line_end

        mov     si, arguments_title
        call    write_text
        mov     es, [psp]
        xor     cx, cx
        mov     cl, [es:0x80]           ; the command tail, length first
        mov     dx, 0x81
        push    ds
        push    es
        pop     ds
        call    write_bytes
        pop     ds
        call    write_line_end

        mov     es, [psp]
        mov     es, [es:0x2C]           ; the environment: strings, each ended by 0, an empty one behind the last
        xor     di, di
.next_string:
        cmp     byte [es:di], 0
        je      .done
        mov     dx, di
        xor     al, al
        mov     cx, 0xFFFF
        repne   scasb                   ; DI behind the 0
        mov     cx, di
        sub     cx, dx
        dec     cx
        push    ds
        push    es
        pop     ds
        call    write_bytes
        pop     ds
        call    write_line_end
        jmp     .next_string
.done:
        mov     si, end_title
        call    write_text
        call    write_line_end
        mov     bx, [file]
        cmp     bx, 0
        je      .exit
        mov     ah, 0x3E
        int     0x21
.exit:
        mov     ax, 0x4C00
        int     0x21

write_line_end:
        mov     si, line_end
; The text at DS:SI, ended by 0.
write_text:
        mov     dx, si
        xor     cx, cx
.count:
        lodsb
        or      al, al
        jz      write_bytes
        inc     cx
        jmp     .count

; CX bytes at DS:DX, to the screen and to the file. Keeps DI and ES.
write_bytes:
        jcxz    .nothing
        mov     ah, 0x40
        mov     bx, 1
        int     0x21
        mov     bx, [cs:file]
        or      bx, bx
        jz      .nothing
        mov     ah, 0x40
        int     0x21
.nothing:
        ret

psp             dw 0
file            dw 0
file_name       db 'OUTPUT.TXT', 0
directory_title db 'DIRECTORY=', 0
arguments_title db 'ARGUMENTS=', 0
end_title       db 'end', 0
line_end        db 13, 10, 0
directory       db '?:\'
                times 68 db 0
text_end:

file_bytes equ kHeaderParagraphs * 16 + (text_end - start)
stack_top  equ (text_end - start + kStackBytes + 15) & 0xFFF0
