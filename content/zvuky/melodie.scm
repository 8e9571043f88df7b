; Jak hlasy mluví: kdo čte, jak rychle a s jakou melodií. Čte to program Festival; řádek za středníkem je poznámka.
; Výšky jsou v půltónech proti základní výšce hlasu, časy v sekundách.

; Kdo co čte. Čísla: základní výška v Hz a kolikrát se hlas protáhne.
(define (hlas-jmen) (hlas voice_czech_dita 208 1.16))
(define (hlas-filmu) (hlas voice_czech_machac 98 1.06))

; Přízvučný celek ("na kmíně") začíná přízvučnou slabikou, druhá nad ni vystoupí a další zvolna klesají.
(define zdvih 1.9)
(define pokles 0.9)
; Celky jdou od začátku věty ke konci dolů; každý nový úsek za čárkou se zase trochu zvedne.
(define zacatek 1.5)
(define konec -0.8)
(define navrat 0.8)
; Poslední celek věty: odkud a kam hlas klesne. Dohromady je to čtyři až pět půltónů.
(define zaver-od 1.0)
(define zaver-do -3.6)
; Před čárkou klesne jen málo, v otázce hlas vystoupí.
(define carka-do -0.9)
(define otazka-do 4.5)
; Poslední slabika před odmlkou se protáhne, odmlky jsou delší, než má Festival sám.
(define protazeni 1.22)
(define odmlka 1.5)

; --- odtud to je program

(set! czech-randomize nil)

(define zakladni-vyska 200)
(define zakladni-protazeni 1)
(define zmena-vysky 1)

(define (hlas volba vyska pomalost)
  (volba)
  (set! zakladni-vyska vyska)
  (set! zakladni-protazeni pomalost)
  (Param.set 'Duration_Method trvani)
  (Param.set 'Int_Method czech-int-select-contours)
  (set! int_general_params (list (list 'targ_func cile) (list 'f0_mean vyska) (list 'f0_std 0)))
  (Param.set 'Int_Target_Method Int_Targets_General)
  ; Festival by hlas zesílil, až by se ořezával; hlasitost se dělá potom.
  (set! after_synth_hooks nil))

(define (hertz pultony)
  (* zakladni-vyska zmena-vysky (exp (* pultony (/ (log 2) 12)))))

(define (posledni-pred-odmlkou? slabika)
  (let ((dalsi (item.next (item.relation (item.daughtern (item.relation slabika 'SylStructure)) 'Segment))))
    (or (not dalsi) (string-equal (item.name dalsi) "#"))))

(define (protahni hlaska cim)
  (item.set_feat hlaska "dur_factor" (* cim (item.feat hlaska "dur_factor"))))

(define (trvani utt)
  (czech-duration-pauses utt)
  (czech-duration-factors utt)
  (mapcar (lambda (slabika)
            (if (posledni-pred-odmlkou? slabika)
                (mapcar (lambda (hlaska) (protahni hlaska protazeni))
                        (item.daughters (item.relation slabika 'SylStructure)))))
          (utt.relation.items utt 'Syllable))
  (mapcar (lambda (hlaska)
            (if (string-equal (item.name hlaska) "#") (protahni hlaska odmlka)))
          (utt.relation.items utt 'Segment))
  (czech-duration-compute utt)
  utt)

; Přízvučný celek slabiky; předrážka ("A kapr") v žádném není.
(define (celek slabika)
  (let ((v-celku (item.relation slabika 'StressUnit)))
    (and v-celku (item.parent v-celku))))

(define (poradi prvek)
  (let ((n 0))
    (while (item.prev prvek)
      (set! n (+ n 1))
      (set! prvek (item.prev prvek)))
    n))

(define (podil cast celkem)
  (if (< celkem 1) 0 (/ cast celkem)))

; Kde leží linie, kolem které se melodie pohybuje.
(define (linie utt slabika)
  (let ((usek (item.parent (item.relation slabika 'IntUnit)))
        (slabik (- (length (utt.relation.items utt 'Syllable)) 1)))
    (+ zacatek
       (* (podil (poradi (item.relation slabika 'Syllable)) slabik) (- konec zacatek))
       (if (and usek (item.prev usek)) navrat 0))))

(define (delka-celku c) (length (item.daughters c)))

; Výška na začátku a na konci samohlásky proti linii.
(define (v-celku i n)
  (cond ((eqv? n 1) (list (* 0.5 zdvih) (* 0.2 zdvih)))
        ((eqv? i 0) (list -0.2 (* 0.3 zdvih)))
        (t (let ((vyska (- zdvih (* (podil (- i 1) (- n 1)) (+ zdvih pokles)))))
             (list vyska (- vyska 0.2))))))

; Kam až sestoupil hlas v posledním celku: první slabika je ještě nahoře, poslední dole.
(define (po-svahu i n od do)
  (let ((krok (/ (- do od) (if (eqv? n 1) 1 (- n 0.5)))))
    (if (eqv? n 1)
        (list od do)
        (list (+ od (* krok (czech-max 0 (- i 0.25)))) (if (eqv? i (- n 1)) do (+ od (* krok (+ i 0.1))))))))

(define (vysky utt slabika)
  (let ((c (celek slabika)) (stred (linie utt slabika)))
    (if (not c)
        (list stred stred)
        (let ((i (poradi (item.relation slabika 'StressUnit)))
              (n (delka-celku c))
              (misto (item.feat c "position")))
          (cond ((string-equal misto "FF-KKL") (po-svahu i n (+ zaver-od (* 0.3 stred)) zaver-do))
                ((string-equal misto "FF-IT")
                 (if (eqv? i (- n 1)) (list stred (+ stred otazka-do)) (list (- stred 1) (- stred 1))))
                ((string-equal misto "F")
                 (mapcar (lambda (v) (+ v stred)) (po-svahu i n (* 0.6 zdvih) carka-do)))
                (t (mapcar (lambda (v) (+ v stred)) (v-celku i n))))))))

; Jádro slabiky: její samohláska (i dvojhláska) nebo slabikotvorné r, l; když nic z toho, poslední hláska.
(define (je-samohlaska? hlaska) (string-equal (item.feat hlaska "ph_vc") "+"))

(define (zacatek-hlasky hlaska) (item.feat (item.relation hlaska 'Segment) "segment_start"))

(define (jadro hlasky)
  (let ((prvni nil) (posledni nil))
    (mapcar (lambda (h)
              (if (je-samohlaska? h)
                  (begin
                    (if (not prvni) (set! prvni h))
                    (set! posledni h))))
            hlasky)
    (if prvni (list prvni posledni) (list (car (last hlasky)) (car (last hlasky))))))

(define (cile utt slabika)
  (let ((hlasky (item.daughters (item.relation slabika 'SylStructure))))
    (if (null? hlasky)
        nil
        (let ((j (jadro hlasky)) (v (vysky utt slabika)))
          (let ((od (zacatek-hlasky (car j))) (do (item.feat (cadr j) "end")))
            (list (list (+ od (* 0.15 (- do od))) (hertz (car v)))
                  (list (- do (* 0.1 (- do od))) (hertz (cadr v)))))))))

; Řekne text (v ISO-8859-2) do souboru, tolikrát pomaleji a výš než obvykle.
(define (rekni text soubor zmena)
  (Param.set 'Duration_Stretch (* zakladni-protazeni zmena))
  (set! zmena-vysky zmena)
  (let ((utt (eval (list 'Utterance 'Text text))))
    (utt.synth utt)
    (utt.save.wave utt soubor 'riff)))
