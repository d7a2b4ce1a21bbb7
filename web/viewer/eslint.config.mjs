import tseslint from 'typescript-eslint';

export default tseslint.config(
  { ignores: ['node_modules/'] },
  ...tseslint.configs.strict,
  {
    files: ['src/**/*.ts', 'tests/**/*.ts', 'bench/**/*.ts'],
    rules: {
      eqeqeq: 'error',
      'no-restricted-properties': [
        'error',
        // What a description says is text and never becomes markup.
        ...['innerHTML', 'outerHTML', 'insertAdjacentHTML', 'write'].map((property) => ({ property })),
      ],
    },
  },
  // A test fails all the same where something is not there.
  { files: ['tests/**/*.ts', 'bench/**/*.ts'], rules: { '@typescript-eslint/no-non-null-assertion': 'off' } },
);
