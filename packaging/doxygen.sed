# In lines of comments, signs that Doxygen would read as markup.
/^ \*/ {
  /^ \*     /! s/[%<&#]/\\&/g
}
