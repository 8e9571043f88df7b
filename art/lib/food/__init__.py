# SPDX-License-Identifier: GPL-3.0-or-later
"""What lies on the plates."""
from .flakes import flakes  # noqa: F401
from .shapes import (blob, loft, sheet, slab)  # noqa: F401
from .surfaces import (crumb, fishskin, flesh, gherkin_mat, onion_mat)  # noqa: F401
from .pieces import (_bar, _cubelet, _lump, _salmonpic, battered, block, breaded, crumbs_on, cube, cutlet, fillet, flake, grillmarks, horseshoe, patty, rolled, rose, slice_cured, smokedpiece, stick, tartare)  # noqa: F401
from .sides import (_grain, bread, chip, crouton, dumpling_ball, dumpling_slice, elbow, potato, potato_half, potato_mat, potatoes_mash, rice, roll, spaghetti, toast_triangle)  # noqa: F401
from .vegetables import (almond, apple_slice, asparagus, aubergine_slice, bacon, butter, butter_curl, caper, carrot_mat, carrot_slice, carrot_star, cherry_tomato, citrus, corn, courgette_slice, cranberry, cucumber_slice, dice, egg_half, egg_piped, egg_slice, gherkin, gherkin_fan, herb_butter, leek_ring, lemon_half, lemon_slice, lemon_wedge, mushroom_slice, olive, onion_ring, pea, peel, pepper_piece, pepper_ring, prune, radish_flower, radish_slice, raisin, sphere_on, strip, tomato_mat, tomato_slice, tomato_wedge, torus_z, walnut, yolk, yolk_mat)  # noqa: F401
from .herbs import (_dill, _leafshape, _needle, _needles, herb_mat, leaf, lettuce, sprig)  # noqa: F401
from .strewn import (_bit, sprinkle)  # noqa: F401
from .sauces import (SAUCES, aspic_cube, aspic_mat, aspic_mould, drape, drops, line, liquid, pool, salad_heap, sauce_mat, steam, swirl, swirl_cream)  # noqa: F401
from .home import (bramborak, codsalad, halved, penne, salmonportion, sauerkraut, spinach, spreadheap, tin)  # noqa: F401
