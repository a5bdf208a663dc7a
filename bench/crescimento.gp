# Cost per worker and peak memory of a batch against the number of workers; `pasta` is given by the caller.
set terminal svg size 720,420 font 'sans-serif,12'
set output pasta.'/crescimento.svg'
set title 'lote S-1200: um mês'
set xlabel 'trabalhadores'
set logscale x
set grid
set ylabel 'µs por trabalhador'
set yrange [0:*]
set y2label 'pico de memória (MB)'
set y2range [0:*]
set ytics nomirror
set y2tics
set key bottom right
plot pasta.'/crescimento.tsv' using 1:2 with linespoints lw 2 title 'custo por trabalhador', \
     '' using 1:($3/1024) axes x1y2 with linespoints lw 2 dt 2 title 'pico de memória'
